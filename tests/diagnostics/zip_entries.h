#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace vistrel::testing {

// Every entry of a zip archive by name ("folder/" for folders) with its bytes, read with
// libzip's reading side, independently of how the archive was written.
std::map<std::string, std::string> zipEntries(const std::filesystem::path& archive);

// The bytes of the file named `name` inside the archive's top folder, if it is there.
std::optional<std::string> fileInReport(const std::filesystem::path& archive,
                                        const std::string& name);

}  // namespace vistrel::testing
