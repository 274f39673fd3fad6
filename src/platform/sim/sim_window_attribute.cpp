#include "platform/sim/sim_window_attribute.h"

#include <algorithm>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_window_part.h"

namespace vistrel {

AXError writeWindowAttribute(SimWindow& window, std::string_view attribute, const AXValue& value) {
    if (attribute == "AXPosition") {
        const Point* p = std::get_if<Point>(&value);
        if (p == nullptr) return AXError::illegalArgument;
        if (!window.positionSettable) return AXError::attributeUnsupported;
        window.frame.x = p->x;
        window.frame.y = p->y;
    } else if (attribute == "AXSize") {
        const Size* s = std::get_if<Size>(&value);
        if (s == nullptr) return AXError::illegalArgument;
        if (!window.sizeSettable) return AXError::attributeUnsupported;
        const Size least = window.minimumSize.value_or(Size{});
        window.frame.width = std::max(s->width, least.width);
        window.frame.height = std::max(s->height, least.height);
    } else if (attribute == "AXMinimized") {
        const bool* on = std::get_if<bool>(&value);
        if (on == nullptr) return AXError::illegalArgument;
        if (!window.minimizedSettable ||
            window.minimizeBehavior == MinimizeBehavior::refusesAttributeObeysButton) {
            return AXError::cannotComplete;
        }
        if (window.minimizeBehavior == MinimizeBehavior::obeys) window.minimized = *on;
    } else if (attribute == "AXFullScreen") {
        const bool* on = std::get_if<bool>(&value);
        if (on == nullptr) return AXError::illegalArgument;
        if (!window.fullScreenSettable) return AXError::attributeUnsupported;
        window.fullScreen = *on;
    } else {
        return AXError::attributeUnsupported;
    }
    return AXError::success;
}

AXError pressWindowPart(SimDesktop& desktop, SimWindow& window, SimWindowPart part) {
    if (!hasPart(window, part)) return AXError::invalidUIElement;
    switch (part) {
        case SimWindowPart::closeButton:
            desktop.closeWindow(window.id);
            break;
        case SimWindowPart::minimizeButton:
            if (window.minimizeBehavior != MinimizeBehavior::never) window.minimized = true;
            break;
        case SimWindowPart::fullScreenButton:
            window.fullScreen = !window.fullScreen;
            break;
        case SimWindowPart::title:
            return AXError::actionUnsupported;
    }
    return AXError::success;
}

std::optional<std::string> exposedDocument(SimDesktop& desktop, const SimWindow& window) {
    const SimApplication* app = desktop.application(window.pid);
    if (app == nullptr || !app->exposesDocuments) return std::nullopt;
    return window.document;
}

}  // namespace vistrel
