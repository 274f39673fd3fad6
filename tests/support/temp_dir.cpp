#include "support/temp_dir.h"

#include <stdlib.h>

#include <fstream>
#include <sstream>
#include <system_error>

namespace vistrel::testing {

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vistrel-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace vistrel::testing
