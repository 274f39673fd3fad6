#include "platform/file_system.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace vistrel {

std::optional<std::string> FileSystem::read(const std::string& file) {
    // A folder opens as a stream on some systems and fails only when read: ask first.
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad()) return std::nullopt;
    return bytes.str();
}

}  // namespace vistrel
