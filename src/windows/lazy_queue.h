#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "platform/executor.h"

namespace vistrel {

// A serial work queue made on first use. It belongs to the executor that made it, so it is
// made again when another platform has been installed since (each test installs its own
// simulated desktop; the agent installs one platform for its lifetime).
class LazyQueue {
  public:
    LazyQueue(std::string label, QualityOfService quality)
        : label_(std::move(label)), quality_(quality) {}

    std::shared_ptr<SerialQueue> get();

  private:
    std::mutex mutex_;
    const std::string label_;
    const QualityOfService quality_;
    std::shared_ptr<SerialQueue> queue_;
    std::uint64_t madeFor_ = 0;
};

}  // namespace vistrel
