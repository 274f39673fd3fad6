#pragma once

#include <filesystem>
#include <string>

namespace vistrel::testing {

// A fresh folder under the system's temporary directory, removed with everything in it
// when the object goes away.
class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// The whole content of a file as text; empty when it cannot be read.
std::string readFile(const std::filesystem::path& path);

}  // namespace vistrel::testing
