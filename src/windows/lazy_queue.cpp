#include "windows/lazy_queue.h"

#include "platform/platform.h"

namespace vistrel {

std::shared_ptr<SerialQueue> LazyQueue::get() {
    std::lock_guard lock(mutex_);
    if (!queue_ || madeFor_ != platformGeneration()) {
        queue_ = platform().executor.makeQueue(label_, quality_);
        madeFor_ = platformGeneration();
    }
    return queue_;
}

}  // namespace vistrel
