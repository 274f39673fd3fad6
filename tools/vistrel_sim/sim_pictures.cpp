#include "sim_pictures.h"

#include <string>

namespace vistrel {

std::vector<SimScreenThumbnail> screenThumbnails(SimDesktop& desktop,
                                                 std::optional<SimWindowId> hovered) {
    std::vector<SimScreenThumbnail> result;
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        const SimWindow* window = desktop.window(thumbnail.window);
        result.push_back({thumbnail.frame, window != nullptr ? window->title : std::string(),
                          thumbnail.window, thumbnail.window == hovered});
    }
    return result;
}

std::optional<SimThumbnail> largestThumbnail(SimDesktop& desktop) {
    std::optional<SimThumbnail> largest;
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        if (!largest || thumbnail.frame.area() > largest->frame.area()) largest = thumbnail;
    }
    return largest;
}

}  // namespace vistrel
