#pragma once

#include <optional>
#include <string>

namespace vistrel {

// Zips a folder, keeping the folder itself as the archive's top level. On macOS:
// Process running "/usr/bin/ditto" "-c" "-k" "--keepParent" folder archive, waited for.
class Archiver {
  public:
    virtual ~Archiver() = default;
    // Nothing on success, else why it failed (the tool could not start, or its exit status).
    virtual std::optional<std::string> zip(const std::string& folder,
                                           const std::string& archive) = 0;
};

}  // namespace vistrel
