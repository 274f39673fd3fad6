#include "tracking/thumbnail_window.h"

#include "tracking/window_by_number.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel::ThumbnailWindow {

namespace {

// The smallest thumbnail of the current desktop containing the point; the earlier one on
// equal areas, as the engine chooses.
std::optional<MissionControlThumbnail> thumbnailAt(Point point) {
    WindowManagerThumbnails reader;
    std::optional<MissionControlThumbnail> winner;
    for (MissionControlThumbnail& thumbnail : reader.read()) {
        if (!thumbnail.frame.contains(point)) continue;
        if (!winner || thumbnail.frame.area() < winner->frame.area()) winner = thumbnail;
    }
    return winner;
}

}  // namespace

std::optional<AX::WindowHit> at(Point point) {
    if (const auto hit = AX::elementAt(point)) {
        if (const auto number = WindowManagerThumbnails::windowOf(*hit)) {
            if (auto window = WindowByNumber::find(*number, *hit)) return window;
        }
    }
    const auto thumbnail = thumbnailAt(point);
    if (!thumbnail) return std::nullopt;
    return WindowByNumber::find(thumbnail->window, thumbnail->element);
}

}  // namespace vistrel::ThumbnailWindow
