#pragma once

#include "platform/archiver.h"

namespace vistrel {

// "/usr/bin/ditto" run with Process (NSTask) and waited for.
class MacArchiver : public Archiver {
  public:
    std::optional<std::string> zip(const std::string& folder, const std::string& archive) override;
};

}  // namespace vistrel
