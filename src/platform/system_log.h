#pragma once

#include <string_view>

namespace vistrel {

enum class LogLevel { info, error };

// The unified system log (os.Logger), written with "%{public}s" so nothing is redacted.
class SystemLog {
  public:
    virtual ~SystemLog() = default;
    virtual void write(std::string_view subsystem, std::string_view category, LogLevel level,
                       std::string_view message) = 0;
};

}  // namespace vistrel
