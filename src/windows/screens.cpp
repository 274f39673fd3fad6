#include "windows/screens.h"

#include "platform/platform.h"

namespace vistrel {

std::vector<ScreenInfo> Screens::snapshot() {
    const std::vector<ScreenDescription> screens = platform().screens.screens();
    std::vector<ScreenInfo> infos;
    if (screens.empty()) return infos;
    const double primaryHeight = screens.front().frame.height;
    for (const ScreenDescription& screen : screens) {
        infos.push_back({id(screen), flip(screen.frame, primaryHeight),
                         flip(screen.visibleFrame, primaryHeight)});
    }
    return infos;
}

std::optional<ScreenInfo> Screens::at(Point point, const std::vector<ScreenInfo>& screens) {
    for (const ScreenInfo& screen : screens) {
        if (screen.frame.contains(point)) return screen;
    }
    return std::nullopt;
}

std::optional<ScreenInfo> Screens::holding(Rect rect, const std::vector<ScreenInfo>& screens) {
    if (auto centred = at(rect.mid(), screens)) return centred;
    const ScreenInfo* best = nullptr;
    double bestArea = 0;
    for (const ScreenInfo& screen : screens) {
        const double area = screen.frame.intersection(rect).area();
        if (area > bestArea) {
            best = &screen;
            bestArea = area;
        }
    }
    if (best == nullptr) return std::nullopt;
    return *best;
}

std::string Screens::id(const ScreenDescription& screen) {
    if (!screen.displayID) return {};
    return platform().windowServer.displayUUID(*screen.displayID).value_or(std::string());
}

Rect Screens::flip(Rect rect, double primaryHeight) {
    return {rect.minX(), primaryHeight - rect.maxY(), rect.width, rect.height};
}

Rect Screens::toAppKit(Rect rect) {
    const std::vector<ScreenDescription> screens = platform().screens.screens();
    return flip(rect, screens.empty() ? 0 : screens.front().frame.height);
}

}  // namespace vistrel
