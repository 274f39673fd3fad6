#pragma once

#include <map>
#include <string>

namespace vistrel {

// Every entry of a zip archive by name ("folder/" for folders) with its bytes, read with
// libzip's reading side. Empty when the file is not a readable zip archive.
std::map<std::string, std::string> readZipEntries(const std::string& archive);

}  // namespace vistrel
