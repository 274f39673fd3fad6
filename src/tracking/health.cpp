#include "tracking/health.h"

#include <memory>
#include <string>
#include <utility>

#include "base/log.h"
#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"

namespace vistrel {

Health& Health::shared() {
    return perPlatform<Health>([] { return std::make_unique<Health>(); });
}

Health::Problem Health::problem() const {
    if (!platform().accessibility.isProcessTrusted()) return Problem::notTrusted;
    if (staleGrant()) return Problem::staleGrant;
    if (selfCheck_.cannotRead()) return Problem::cannotReadMissionControl;
    if (tapUnsteady_) return Problem::tapUnsteady;
    return Problem::none;
}

void Health::setStaleGrant(bool stale) {
    if (staleGrant_ == stale) return;
    const bool wasStale = std::exchange(staleGrant_, stale).value_or(false);
    if (stale != wasStale) stale ? Log::error(staleGrantLine) : Log::info(grantWorksLine);
    // The Settings app shows the grant as the agent found it. The first finding of a run is
    // published even when it is good: the store outlives the run, and a grant given again
    // while the agent was not running must not go on reading as stale.
    if (auto store = Shared::store())
        store->set(std::string(PreferenceKey::agentAccessibilityStale), stale);
}

void Health::openingEnded(const std::optional<MissionControlReading>& reading, int tapDisables) {
    // An opening the tap went through without being switched off shows it steady again.
    if (tapDisables == 0) tapUnsteady_ = false;
    if (!reading || !selfCheck_.record(*reading)) return;
    if (selfCheck_.cannotRead()) {
        Log::error(std::string(cannotReadLine) + reading->summary());
    } else {
        Log::info(readsAgainLine);
    }
}

}  // namespace vistrel
