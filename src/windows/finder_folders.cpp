#include "windows/finder_folders.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/file_url.h"
#include "base/log.h"
#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr char fieldSeparator = '\t';
constexpr char boundsSeparator = ',';
constexpr std::size_t fields = 3;
constexpr std::size_t boundsCount = 4;

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find(separator, start);
        parts.push_back(text.substr(start, end - start));
        if (end == std::string_view::npos) return parts;
        start = end + 1;
    }
}

std::optional<Rect> boundsOf(std::string_view text) {
    const std::vector<std::string_view> parts = split(text, boundsSeparator);
    if (parts.size() != boundsCount) return std::nullopt;
    // Finder's bounds are whole points.
    long values[boundsCount] = {};
    for (std::size_t i = 0; i < boundsCount; ++i) {
        const char* end = parts[i].data() + parts[i].size();
        const auto [stop, error] = std::from_chars(parts[i].data(), end, values[i]);
        if (error != std::errc() || stop != end) return std::nullopt;
    }
    if (values[2] < values[0] || values[3] < values[1]) return std::nullopt;
    const auto at = [&](std::size_t i) { return static_cast<double>(values[i]); };
    return Rect{at(0), at(1), at(2) - at(0), at(3) - at(1)};
}

std::optional<FinderFolders::Window> windowOf(std::string_view line) {
    const std::vector<std::string_view> parts = split(line, fieldSeparator);
    if (parts.size() != fields || !parts[2].starts_with('/')) return std::nullopt;
    const auto bounds = boundsOf(parts[1]);
    if (!bounds) return std::nullopt;
    return FinderFolders::Window{std::string(parts[0]), *bounds, FileURL::of(parts[2])};
}

bool near(Rect a, Rect b) {
    const auto close = [](double x, double y) {
        return std::abs(x - y) <= FinderFolders::frameTolerance;
    };
    return close(a.x, b.x) && close(a.y, b.y) && close(a.width, b.width) &&
           close(a.height, b.height);
}

bool isFinderWithoutFolder(const OpenWindow& window) {
    return window.bundleID == FinderFolders::bundleID && !window.document;
}

}  // namespace

const std::string& FinderFolders::script() {
    static const std::string text =
        "tell application \"Finder\"\n"
        "  set listing to \"\"\n"
        "  repeat with w in (every Finder window)\n"
        "    try\n"
        "      set b to bounds of w\n"
        "      set listing to listing & (name of w) & tab & (item 1 of b) & \",\" & "
        "(item 2 of b) & \",\" & (item 3 of b) & \",\" & (item 4 of b) & tab & "
        "(POSIX path of (target of w as alias)) & linefeed\n"
        "    end try\n"
        "  end repeat\n"
        "  return listing\n"
        "end tell\n";
    return text;
}

std::vector<FinderFolders::Window> FinderFolders::parse(std::string_view output) {
    std::vector<Window> windows;
    for (std::string_view line : split(output, '\n')) {
        if (auto window = windowOf(line)) windows.push_back(std::move(*window));
    }
    return windows;
}

std::vector<FinderFolders::Window> FinderFolders::read() {
    const std::optional<std::string> output = platform().scripts.run(script(), timeout);
    if (!output) {
        Log::info(
            "layouts: Finder did not say which folders its windows show (is Vistrel "
            "allowed to control Finder?)");
        return {};
    }
    return parse(*output);
}

std::optional<std::string> FinderFolders::folderOf(const OpenWindow& window,
                                                   const std::vector<Window>& finder) {
    std::optional<std::string> folder;
    for (const Window& candidate : finder) {
        if (candidate.name != window.title || !near(candidate.frame, window.frame)) continue;
        if (folder) return std::nullopt;
        folder = candidate.folder;
    }
    return folder;
}

void FinderFolders::fill(std::vector<OpenWindow>& windows) {
    if (std::ranges::none_of(windows, isFinderWithoutFolder)) return;
    const std::vector<Window> finder = read();
    for (OpenWindow& window : windows) {
        if (isFinderWithoutFolder(window)) window.document = folderOf(window, finder);
    }
}

}  // namespace vistrel
