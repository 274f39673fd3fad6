#include "tracking/grant_watch.h"

#include "platform/platform.h"
#include "tracking/grant_probe.h"
#include "tracking/health.h"

namespace vistrel {

void GrantWatch::check() {
    const bool trusted = platform().accessibility.isProcessTrusted();
    if (lastTrusted_ == trusted) return;
    lastTrusted_ = trusted;
    // A grant withdrawn is told as not granted; whether it is stale is read when it returns.
    if (!trusted) return;
    std::weak_ptr<int> alive = alive_;
    queue_->async([this, alive] {
        const auto answer = GrantProbe::readDock();
        platform().executor.main().async([this, alive, answer] {
            if (alive.lock()) probed(answer);
        });
    });
}

void GrantWatch::probed(std::optional<AXError> answer) {
    // A grant withdrawn meanwhile is told as not granted, not as stale.
    if (!answer || lastTrusted_ != true) return;
    Health::shared().setStaleGrant(GrantProbe::failsAsStale(*answer));
}

}  // namespace vistrel
