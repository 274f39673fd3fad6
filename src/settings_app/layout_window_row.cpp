#include "settings_app/layout_window_row.h"

#include "base/file_url.h"

namespace vistrel {

LayoutWindowRow LayoutWindowRow::of(const SavedLayout::Window& window) {
    LayoutWindowRow row{window.app, window.title, {}};
    if (!window.document) return row;
    std::optional<std::string> path = FileURL::path(*window.document);
    if (!path) return row;
    // A folder is shown as Finder shows its path, without the closing '/'.
    while (path->size() > 1 && path->back() == '/')
        path->pop_back();
    row.detail = FileURL::name(*window.document);
    row.path = *path;
    return row;
}

}  // namespace vistrel
