#include "tracking/window_manager_thumbnails.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/platform.h"
#include "tracking/ax.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";

// The numbers of the windows on screen now: the current desktop's.
std::vector<std::uint32_t> onScreenWindows() {
    std::vector<std::uint32_t> numbers;
    const auto list = platform().windowServer.windowList(WindowListOption::onScreenOnly);
    if (!list) return numbers;
    for (const WindowDescription& window : *list) {
        if (window.number) numbers.push_back(*window.number);
    }
    return numbers;
}

}  // namespace

// The number may come as an integer or, from some processes, as a floating-point value.
std::optional<std::uint32_t> WindowManagerThumbnails::windowOf(const AXElement& element) {
    AXValue read;
    if (platform().accessibility.copyAttribute(element, windowNumber, read) != AXError::success) {
        return std::nullopt;
    }
    double number = 0;
    if (const auto* integer = std::get_if<std::int64_t>(&read)) {
        number = static_cast<double>(*integer);
    } else if (const auto* real = std::get_if<double>(&read)) {
        number = *real;
    }
    if (!(number >= 1) || number > std::numeric_limits<std::uint32_t>::max() ||
        number != std::floor(number)) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(number);
}

std::vector<MissionControlThumbnail> WindowManagerThumbnails::read() {
    std::vector<MissionControlThumbnail> thumbnails;
    const auto windowManager = windowManager_.get();
    if (!windowManager) return thumbnails;
    const auto displays = AX::elements(*windowManager, children);
    if (displays.empty()) return thumbnails;
    const std::vector<std::uint32_t> onScreen = onScreenWindows();
    for (const AXElement& display : displays) {
        if (AX::string(display, identifier) != displayIdentifier) continue;
        appendDisplay(display, onScreen, thumbnails);
    }
    return thumbnails;
}

// The thumbnails among one display's children: those that name a window on screen and
// have a frame. The "mc.spaces" group names no window and is passed over.
void WindowManagerThumbnails::appendDisplay(const AXElement& display,
                                            const std::vector<std::uint32_t>& onScreen,
                                            std::vector<MissionControlThumbnail>& thumbnails) {
    for (const AXElement& child : AX::elements(display, children)) {
        const auto window = windowOf(child);
        if (!window || std::find(onScreen.begin(), onScreen.end(), *window) == onScreen.end()) {
            continue;
        }
        if (auto frame = AX::frame(child)) thumbnails.push_back({child, *frame, *window});
    }
}

}  // namespace vistrel
