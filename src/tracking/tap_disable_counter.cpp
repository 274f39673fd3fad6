#include "tracking/tap_disable_counter.h"

#include <algorithm>

namespace vistrel {

std::optional<std::size_t> TapDisableCounter::record(double now) {
    times_[next_] = now;
    next_ = (next_ + 1) % tooMany;
    recorded_ = std::min(recorded_ + 1, tooMany);
    // With the ring full, the slot written next holds the oldest of the last `tooMany`.
    const bool crowded = recorded_ == tooMany && now - times_[next_] <= window;
    if (!crowded) {
        reported_ = false;
        return std::nullopt;
    }
    if (reported_) return std::nullopt;
    reported_ = true;
    return tooMany;
}

}  // namespace vistrel
