#include "platform/file_system.h"

#include <fstream>
#include <iterator>

namespace vistrel {

std::optional<std::string> FileSystem::read(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) return std::nullopt;
    return bytes;
}

}  // namespace vistrel
