#include "tracking/mission_control_detector.h"

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

// Whether the Dock's tree is worth reading: a Dock window on layer 18 (Mission Control or
// App Exposé up to macOS 26) or a system whose Mission Control never shows one.
bool worthReadingTheDock() {
    return MissionControlHosts::running() == MissionControlHost::windowManager ||
           MissionControlDetector::windowListShowsMissionControl();
}

bool onboardingCompleted() {
    const auto store = Shared::store();
    if (!store) return false;
    return store->object(std::string(PreferenceKey::onboardingCompleted)).boolean().value_or(false);
}

}  // namespace

bool MissionControlDetector::isMissionControlOpen() {
    if (!worthReadingTheDock()) return false;
    ApplicationElement dock(ThumbnailReader::dockBundleIdentifier, ThumbnailReader::dockTimeout);
    return dockShowsMissionControl(dock);
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
    const auto element = dock.get();
    if (!element) return false;
    for (const AXElement& child : AX::elements(*element, children)) {
        if (AX::string(child, identifier) == ThumbnailReader::missionControlIdentifier) {
            return true;
        }
    }
    return false;
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
    if (trusted && worthReadingTheDock()) {
        readInBackground();
        return;
    }
    report(trusted, false);
}

// One read in flight at most: the next poll is armed only when its answer is back.
void MissionControlDetector::readInBackground() {
    if (!queue_) {
        queue_ = platform().executor.makeQueue(std::string(queueLabel),
                                               QualityOfService::userInteractive);
        dock_ = std::make_shared<ApplicationElement>(ThumbnailReader::dockBundleIdentifier,
                                                     ThumbnailReader::dockTimeout);
    }
    std::weak_ptr<int> alive = alive_;
    queue_->async([this, alive, dock = dock_] {
        const bool open = dockShowsMissionControl(*dock);
        platform().executor.main().async([this, alive, open] {
            if (alive.lock()) report(true, open);
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
