#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/overlay_button.h"
#include "platform/ax_element.h"
#include "platform/ax_value.h"
#include "platform/geometry.h"
#include "platform/platform.h"
#include "platform/process.h"

namespace vistrel {

// Typed readers over the accessibility interface, and the two questions asked about a
// window: which window lies under a point, and which overlay buttons it supports. Every
// reader answers with a value of the expected type or with nothing; no error escapes.
// Stateless apart from the system-wide element, so callable from any thread.
namespace AX {

// A time-out set on an element holds for that element alone, except on the system-wide
// element, where it becomes the default of every element without one of its own
// (AXUIElementSetMessagingTimeout). The default is set once, on purpose, when the
// system-wide element is made: the hit test's, so that a hung application costs a hover at
// most this long. Only the hit test and the elements it answers go by it; every other
// element read or acted on is given the time-out of its own kind of work first.
inline constexpr float systemWideTimeout = 0.2f;

// Attribute names.
inline constexpr std::string_view role = "AXRole";
inline constexpr std::string_view windowRole = "AXWindow";
inline constexpr std::string_view windowAttribute = "AXWindow";
inline constexpr std::string_view frameAttribute = "AXFrame";
inline constexpr std::string_view closeButton = "AXCloseButton";
inline constexpr std::string_view minimizeButton = "AXMinimizeButton";
inline constexpr std::string_view fullScreenButton = "AXFullScreenButton";
inline constexpr std::string_view minimized = "AXMinimized";
inline constexpr std::string_view fullScreen = "AXFullScreen";
inline constexpr std::string_view size = "AXSize";

// The window found under a point and the process that owns it.
struct WindowHit {
    AXElement window;
    Pid pid = 0;
};

// The system-wide element, made once per installed platform with its short time-out.
AXElement systemWide();

// An attribute's value when it can be read and holds the type asked for; nothing otherwise.
template <typename T>
std::optional<T> value(const AXElement& element, std::string_view attribute) {
    AXValue read;
    if (platform().accessibility.copyAttribute(element, attribute, read) != AXError::success) {
        return std::nullopt;
    }
    if (const T* typed = std::get_if<T>(&read)) return *typed;
    return std::nullopt;
}

std::optional<std::string> string(const AXElement& element, std::string_view attribute);
std::optional<AXElement> element(const AXElement& element, std::string_view attribute);
std::vector<AXElement> elements(const AXElement& element, std::string_view attribute);
// The same, each element found given `timeout` before anything is asked of it.
std::optional<AXElement> element(const AXElement& element, std::string_view attribute,
                                 float timeout);
std::vector<AXElement> elements(const AXElement& element, std::string_view attribute,
                                float timeout);
// "AXFrame" as a rectangle; nothing when it holds any other kind of value.
std::optional<Rect> frame(const AXElement& element);
// Whether the attribute can be written; a failing query counts as "no".
bool isSettable(const AXElement& element, std::string_view attribute);

// The element the system-wide hit-test answers at a point; nothing on any error.
std::optional<AXElement> elementAt(Point point);

// The window the system-wide hit-test answers at a point: the hit element when it is a
// window, else the window it belongs to; nothing when it answers with an element of no
// window (a Mission Control thumbnail button).
std::optional<WindowHit> hitWindow(Point point);

// The overlay buttons that can act on the window under the "maximizeMode" setting.
std::set<OverlayButton> availableButtons(const AXElement& window, std::string_view maximizeMode);

}  // namespace AX

}  // namespace vistrel
