#include "tracking/window_manager_thumbnails.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/platform.h"
#include "tracking/ax.h"
#include "tracking/thumbnail_match.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";
constexpr std::string_view title = "AXTitle";

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
    foundDisplay_ = false;
    const auto windowManager = windowManager_.get();
    if (!windowManager) return thumbnails;
    const auto displays = AX::elements(*windowManager, children, timeout);
    if (displays.empty()) return thumbnails;
    const std::vector<std::uint32_t> onScreen = onScreenWindows();
    for (const AXElement& display : displays) {
        if (AX::string(display, identifier) != displayIdentifier) continue;
        foundDisplay_ = true;
        appendDisplay(display, onScreen, thumbnails);
    }
    return thumbnails;
}

// The thumbnails among one display's children: those with a frame that name a window on
// screen, or, where thumbnails name no window, those identified "<bundle id>.space.<n>".
// Other desktops' thumbnails of the second kind stay in; they fit no window of this one.
// The "mc.spaces" group is passed over.
void WindowManagerThumbnails::appendDisplay(const AXElement& display,
                                            const std::vector<std::uint32_t>& onScreen,
                                            std::vector<MissionControlThumbnail>& thumbnails) {
    const auto displayFrame = AX::frame(display);
    for (const AXElement& child : AX::elements(display, children, timeout)) {
        const auto window = windowOf(child);
        if (window && std::find(onScreen.begin(), onScreen.end(), *window) == onScreen.end()) {
            continue;
        }
        auto name = AX::string(child, identifier);
        if (!window && !(name && ThumbnailMatch::bundleOfIdentifier(*name))) continue;
        const auto frame = AX::frame(child);
        if (!frame) continue;
        thumbnails.push_back({child, *frame, window.value_or(0), AX::string(child, title),
                              std::move(name), displayFrame});
    }
}

}  // namespace vistrel
