#include "platform/sim/sim_display_watch.h"

#include "platform/sim/sim_executor.h"

namespace vistrel {

bool SimDisplayWatch::start(Observer observer) {
    if (refuses) return false;
    observer_ = std::move(observer);
    return true;
}

void SimDisplayWatch::post() {
    ++posts;
    if (dropsPosts || !observer_) return;
    // The observer is read when the notification is delivered, so a stop in between wins.
    executor_.main().async([this] {
        if (observer_) observer_();
    });
}

}  // namespace vistrel
