#pragma once

#include "platform/system_log.h"

namespace vistrel {

// The unified log through os_log, one log object per subsystem and category.
class MacSystemLog : public SystemLog {
  public:
    void write(std::string_view subsystem, std::string_view category, LogLevel level,
               std::string_view message) override;
};

}  // namespace vistrel
