#include "tracking/mission_control_detector.h"

#include <optional>
#include <variant>
#include <vector>

#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "tracking/ax.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";

// Only the owner and the layer: other processes' window names are absent from the list
// without the Screen Recording permission, which the agent never asks for.
bool isMissionControlWindow(const WindowDescription& window) {
    return window.ownerName == MissionControlDetector::dock &&
           window.layer.value_or(0) == MissionControlDetector::missionControlLayer;
}

// Whether the Dock lists an "mc" group; nothing when it did not answer in time.
std::optional<bool> dockAnswer(ApplicationElement& dock) {
    const auto element = dock.get();
    if (!element) return false;
    AXValue read;
    const AXError error = platform().accessibility.copyAttribute(*element, children, read);
    if (error == AXError::cannotComplete) return std::nullopt;
    const auto* list = std::get_if<std::vector<AXElement>>(&read);
    if (error != AXError::success || !list) return false;
    for (const AXElement& child : *list) {
        platform().accessibility.setMessagingTimeout(child, ThumbnailReader::dockTimeout);
        if (AX::string(child, identifier) == ThumbnailReader::missionControlIdentifier) {
            return true;
        }
    }
    return false;
}

bool onboardingCompleted() {
    const auto store = Shared::store();
    if (!store) return false;
    return store->object(std::string(PreferenceKey::onboardingCompleted)).boolean().value_or(false);
}

}  // namespace

// Asked rarely (after Escape, by the capture tool), so the Dock is read whatever the window
// list shows: a system that shows no layer-18 window may tell an older version than it runs.
bool MissionControlDetector::isMissionControlOpen() {
    const bool listed = windowListShowsMissionControl();
    ApplicationElement dock(ThumbnailReader::dockBundleIdentifier, ThumbnailReader::dockTimeout);
    return dockAnswer(dock).value_or(listed);
}

// The version only says which look comes first: macOS tells a program linked against an older
// SDK an older version (26 told them 16), so a macOS 27 may call itself 16 and show no
// layer-18 window. Until a layer-18 window has announced Mission Control once, every poll
// also reads the Dock. That costs one AXChildren of the Dock's element and one AXIdentifier
// per child (its bar, and "mc" while open): two or three messages to the Dock every half
// second, tens of microseconds each on the detector's queue, beside the window list the poll
// reads anyway; and on a system that announces Mission Control it stops at the first opening.
bool MissionControlDetector::readsTheDockUnlisted() const {
    return MissionControlHosts::running() == MissionControlHost::windowManager ||
           !announcedByAWindow_;
}

bool MissionControlDetector::windowListShowsMissionControl() {
    const auto windows = platform().windowServer.windowList(WindowListOption::onScreenOnly);
    if (!windows) return false;
    for (const WindowDescription& window : *windows) {
        if (isMissionControlWindow(window)) return true;
    }
    return false;
}

// The Dock lists an "mc" group while Mission Control is open (empty from macOS 27);
// "appexpose" (App Exposé: the windows of one application) and its other children do not
// count, so App Exposé is not Mission Control.
bool MissionControlDetector::dockShowsMissionControl(ApplicationElement& dock) {
    return dockAnswer(dock).value_or(false);
}

double MissionControlDetector::nextInterval(bool trusted, bool open, bool onboarded) {
    if (trusted) return open ? openInterval : closedInterval;
    return onboarded ? untrustedOnboardedInterval : untrustedInterval;
}

void MissionControlDetector::schedule(double interval) {
    std::weak_ptr<int> alive = alive_;
    timer_ = platform().executor.oneShot(interval, interval * toleranceFraction, [this, alive] {
        if (alive.lock()) tick();
    });
}

void MissionControlDetector::tick() {
    const bool trusted = platform().accessibility.isProcessTrusted();
    const bool listed = trusted && windowListShowsMissionControl();
    if (trusted && (listed || readsTheDockUnlisted())) {
        readInBackground(listed);
        return;
    }
    report(trusted, false);
}

// One read in flight at most: the next poll is armed only when its answer is back. A Dock
// that does not answer in time leaves the window list's answer standing.
void MissionControlDetector::readInBackground(bool listed) {
    if (!queue_) {
        queue_ = platform().executor.makeQueue(std::string(queueLabel),
                                               QualityOfService::userInteractive);
        dock_ = std::make_shared<ApplicationElement>(ThumbnailReader::dockBundleIdentifier,
                                                     ThumbnailReader::dockTimeout);
    }
    std::weak_ptr<int> alive = alive_;
    queue_->async([this, alive, dock = dock_, listed] {
        const bool open = dockAnswer(*dock).value_or(listed);
        platform().executor.main().async([this, alive, listed, open] {
            if (!alive.lock()) return;
            if (listed && open) announcedByAWindow_ = true;
            report(true, open);
        });
    });
}

void MissionControlDetector::report(bool trusted, bool open) {
    std::weak_ptr<int> alive = alive_;
    if (onTick) onTick(open);
    // The listener may have freed the detector; then the chain ends here.
    if (alive.expired()) return;
    const bool onboarded = !trusted && onboardingCompleted();
    schedule(nextInterval(trusted, open, onboarded));
}

}  // namespace vistrel
