#include "platform/mac/mac_system_log.h"

#include <os/log.h>

#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace vistrel {

namespace {

os_log_t logFor(std::string_view subsystem, std::string_view category) {
    static std::mutex mutex;
    static std::map<std::pair<std::string, std::string>, os_log_t> logs;
    std::lock_guard lock(mutex);
    auto& log = logs[{std::string(subsystem), std::string(category)}];
    if (log == nullptr) {
        log = os_log_create(std::string(subsystem).c_str(), std::string(category).c_str());
    }
    return log;
}

}  // namespace

void MacSystemLog::write(std::string_view subsystem, std::string_view category, LogLevel level,
                         std::string_view message) {
    const std::string text(message);
    const os_log_type_t type = level == LogLevel::error ? OS_LOG_TYPE_ERROR : OS_LOG_TYPE_DEFAULT;
    os_log_with_type(logFor(subsystem, category), type, "%{public}s", text.c_str());
}

}  // namespace vistrel
