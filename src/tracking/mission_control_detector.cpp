#include "tracking/mission_control_detector.h"

#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"

namespace vistrel {

namespace {

bool isMissionControlWindow(const WindowDescription& window) {
    if (window.ownerName != MissionControlDetector::dock) return false;
    if (window.layer.value_or(0) == MissionControlDetector::missionControlLayer) return true;
    return window.name == MissionControlDetector::appIcon;
}

bool onboardingCompleted() {
    const auto store = Shared::store();
    if (!store) return false;
    return store->object(std::string(PreferenceKey::onboardingCompleted)).boolean().value_or(false);
}

}  // namespace

bool MissionControlDetector::isMissionControlOpen() {
    const auto windows = platform().windowServer.windowList(WindowListOption::onScreenOnly);
    if (!windows) return false;
    for (const WindowDescription& window : *windows) {
        if (isMissionControlWindow(window)) return true;
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
    const bool open = trusted && isMissionControlOpen();
    std::weak_ptr<int> alive = alive_;
    if (onTick) onTick(open);
    // The listener may have freed the detector; then the chain ends here.
    if (alive.expired()) return;
    const bool onboarded = !trusted && onboardingCompleted();
    schedule(nextInterval(trusted, open, onboarded));
}

}  // namespace vistrel
