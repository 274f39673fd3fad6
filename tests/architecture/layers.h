#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vistrel::testing {

// The floors of src/, read from the drawing that opens docs/architecture.md: each line of it
// that starts with "│ folder/" names a floor, the top one first. A file stands on the floor
// of the longest folder that holds it, and may include files of its own floor and of the
// floors below, never above.
class Layers {
  public:
    // The floors the drawing in this Markdown text shows; none when it shows none.
    static Layers fromDrawing(const std::string& markdown);

    // Bottom floor first.
    const std::vector<std::string>& floors() const { return floors_; }
    // The floor of a path under src/ ("session/engine.cpp"); nothing when no floor holds it.
    std::optional<std::size_t> floorOf(const std::string& path) const;

  private:
    std::vector<std::string> floors_;
};

// One include line that breaks the layering.
struct IncludeViolation {
    std::string file;
    int line = 0;
    std::string text;
};

// The include lines of one source text under src/ that reach a higher floor, a folder that
// no floor holds, or (outside the macOS layer, the folders named "mac") an Apple framework's
// header.
std::vector<IncludeViolation> includeViolations(const Layers& layers, const std::string& file,
                                                const std::string& text);

// Every violation of the files under `sourceRoot`.
std::vector<IncludeViolation> scanIncludes(const Layers& layers,
                                           const std::filesystem::path& sourceRoot);

// The folders directly under `sourceRoot` that no floor holds, and the folders inside
// `sourceRoot/platform` that are not floors of their own.
std::vector<std::string> foldersWithoutFloor(const Layers& layers,
                                             const std::filesystem::path& sourceRoot);

// A source file and its length in lines.
struct LongFile {
    std::string file;
    std::size_t lines = 0;
};

// The C++ and Objective-C++ sources under the roots that have more than `limit` lines.
std::vector<LongFile> longFiles(const std::vector<std::filesystem::path>& roots, std::size_t limit);

}  // namespace vistrel::testing
