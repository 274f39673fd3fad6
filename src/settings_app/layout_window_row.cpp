#include "settings_app/layout_window_row.h"

#include <optional>
#include <string_view>

#include "layouts/layout_url.h"

namespace vistrel {

namespace {

constexpr std::string_view fileScheme = "file://";
// RFC 8089: "file:///path" and "file://localhost/path" name a file on this Mac.
constexpr std::string_view localHost = "localhost";

// The path a file URL of this Mac names, percent-decoded, without a folder's closing '/';
// nothing for any other text.
std::optional<std::string> localPath(std::string_view url) {
    if (!url.starts_with(fileScheme)) return std::nullopt;
    url.remove_prefix(fileScheme.size());
    const auto pathStart = url.find('/');
    if (pathStart == std::string_view::npos) return std::nullopt;
    const std::string_view host = url.substr(0, pathStart);
    if (!host.empty() && host != localHost) return std::nullopt;
    // In a path '+' is itself, not a space as in a form.
    auto path = LayoutURL::percentDecoded(url.substr(pathStart), LayoutURL::Plus::kept);
    if (!path) return std::nullopt;
    while (path->size() > 1 && path->back() == '/')
        path->pop_back();
    return path;
}

// The last component of a path: the file's name, or a folder's.
std::string lastComponent(const std::string& path) {
    if (path == "/") return path;
    return path.substr(path.find_last_of('/') + 1);
}

}  // namespace

LayoutWindowRow LayoutWindowRow::of(const SavedLayout::Window& window) {
    LayoutWindowRow row{window.app, window.title, {}};
    if (!window.document) return row;
    const auto path = localPath(*window.document);
    if (!path) return row;
    row.detail = lastComponent(*path);
    row.path = *path;
    return row;
}

}  // namespace vistrel
