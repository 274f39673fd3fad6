#pragma once

#include <optional>
#include <string>

#include "platform/archiver.h"

namespace vistrel {

// A real zip archive written with libzip, laid out as ditto lays it out with --keepParent:
// the folder itself at the top, an entry for it and for each folder below, then its files.
class SimArchiver : public Archiver {
  public:
    std::optional<std::string> zip(const std::string& folder, const std::string& archive) override;

    // The next archive fails with this reason instead of being written.
    std::optional<std::string> failure;
    int archivesWritten = 0;
};

}  // namespace vistrel
