#include "platform/sim/sim_system_log.h"

#include <algorithm>

namespace vistrel {

void SimSystemLog::write(std::string_view subsystem, std::string_view category, LogLevel level,
                         std::string_view message) {
    std::lock_guard lock(mutex_);
    lines_.push_back({std::string(subsystem), std::string(category), level, std::string(message)});
}

std::vector<SimLogLine> SimSystemLog::lines() const {
    std::lock_guard lock(mutex_);
    return lines_;
}

std::vector<std::string> SimSystemLog::messages() const {
    std::lock_guard lock(mutex_);
    std::vector<std::string> messages;
    messages.reserve(lines_.size());
    for (const auto& line : lines_)
        messages.push_back(line.message);
    return messages;
}

std::size_t SimSystemLog::count(std::string_view message) const {
    std::lock_guard lock(mutex_);
    return static_cast<std::size_t>(
        std::count_if(lines_.begin(), lines_.end(),
                      [&](const SimLogLine& line) { return line.message == message; }));
}

void SimSystemLog::clear() {
    std::lock_guard lock(mutex_);
    lines_.clear();
}

}  // namespace vistrel
