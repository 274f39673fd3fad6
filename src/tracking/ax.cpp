#include "tracking/ax.h"

#include <cstdint>
#include <mutex>

#include "platform/platform.h"
#include "settings/preference_key.h"

namespace vistrel::AX {

namespace {

Accessibility& accessibility() {
    return platform().accessibility;
}

bool has(const AXElement& window, std::string_view attribute) {
    return element(window, attribute).has_value();
}

bool canMaximize(const AXElement& window, std::string_view maximizeMode) {
    if (maximizeMode == MaximizeMode::fill) return isSettable(window, size);
    return has(window, fullScreenButton) || isSettable(window, fullScreen);
}

}  // namespace

AXElement systemWide() {
    // Made once per installed platform (tests install a fresh desktop each time); the
    // lock makes the first use safe from any thread.
    static std::mutex mutex;
    static AXElement made;
    static std::uint64_t madeFor = 0;
    std::lock_guard lock(mutex);
    if (!made || madeFor != platformGeneration()) {
        made = accessibility().systemWide();
        accessibility().setMessagingTimeout(made, systemWideTimeout);
        madeFor = platformGeneration();
    }
    return made;
}

std::optional<std::string> string(const AXElement& element, std::string_view attribute) {
    return value<std::string>(element, attribute);
}

std::optional<AXElement> element(const AXElement& element, std::string_view attribute) {
    auto found = value<AXElement>(element, attribute);
    if (found && !*found) return std::nullopt;
    return found;
}

std::vector<AXElement> elements(const AXElement& element, std::string_view attribute) {
    return value<std::vector<AXElement>>(element, attribute).value_or(std::vector<AXElement>{});
}

std::optional<AXElement> element(const AXElement& parent, std::string_view attribute,
                                 float timeout) {
    auto found = element(parent, attribute);
    if (found) accessibility().setMessagingTimeout(*found, timeout);
    return found;
}

std::vector<AXElement> elements(const AXElement& parent, std::string_view attribute,
                                float timeout) {
    auto found = elements(parent, attribute);
    for (const AXElement& child : found)
        accessibility().setMessagingTimeout(child, timeout);
    return found;
}

std::optional<Rect> frame(const AXElement& element) {
    return value<Rect>(element, frameAttribute);
}

bool isSettable(const AXElement& element, std::string_view attribute) {
    bool settable = false;
    return accessibility().isSettable(element, attribute, settable) == AXError::success && settable;
}

std::optional<AXElement> elementAt(Point point) {
    AXElement hit;
    if (accessibility().elementAtPosition(systemWide(), point, hit) != AXError::success || !hit) {
        return std::nullopt;
    }
    return hit;
}

std::optional<WindowHit> hitWindow(Point point) {
    const auto found = elementAt(point);
    if (!found) return std::nullopt;
    const AXElement& hit = *found;
    AXValue hitRole;
    const AXError roleRead = accessibility().copyAttribute(hit, role, hitRole);
    // A process that did not answer in time will not answer the next question either:
    // give up now rather than wait a second time-out.
    if (roleRead == AXError::cannotComplete) return std::nullopt;
    const auto* roleText = std::get_if<std::string>(&hitRole);
    const bool isWindow = roleRead == AXError::success && roleText && *roleText == windowRole;
    std::optional<AXElement> window = hit;
    if (!isWindow) window = element(hit, windowAttribute);
    if (!window) return std::nullopt;
    Pid pid = 0;
    if (accessibility().pid(*window, pid) != AXError::success) return std::nullopt;
    return WindowHit{*window, pid};
}

std::set<OverlayButton> availableButtons(const AXElement& window, std::string_view maximizeMode) {
    std::set<OverlayButton> buttons;
    if (has(window, closeButton)) buttons.insert(OverlayButton::close);
    if (has(window, minimizeButton) || isSettable(window, minimized)) {
        buttons.insert(OverlayButton::minimize);
    }
    if (canMaximize(window, maximizeMode)) buttons.insert(OverlayButton::maximize);
    return buttons;
}

}  // namespace vistrel::AX
