#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "platform/system_log.h"

namespace vistrel {

// One line the agent wrote to the unified log.
struct SimLogLine {
    std::string subsystem;
    std::string category;
    LogLevel level = LogLevel::info;
    std::string message;
};

// The unified log of the simulation: it keeps every line, in order.
class SimSystemLog : public SystemLog {
  public:
    void write(std::string_view subsystem, std::string_view category, LogLevel level,
               std::string_view message) override;

    std::vector<SimLogLine> lines() const;
    // Just the messages, in order.
    std::vector<std::string> messages() const;
    // How many lines carry exactly this message.
    std::size_t count(std::string_view message) const;
    void clear();

  private:
    mutable std::mutex mutex_;
    std::vector<SimLogLine> lines_;
};

}  // namespace vistrel
