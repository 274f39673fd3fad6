#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "platform/accessibility.h"
#include "platform/platform.h"

namespace vistrel {

// The accessibility attributes and actions the window-control code reads, writes and
// performs on other applications' windows, with the few typed calls it needs beyond AX.
namespace WindowAttribute {

// Window actions and frame writes wait this long for a busy application before giving up.
inline constexpr float actionTimeout = 1.0f;

inline constexpr std::string_view windows = "AXWindows";
inline constexpr std::string_view subrole = "AXSubrole";
inline constexpr std::string_view standardWindow = "AXStandardWindow";
inline constexpr std::string_view title = "AXTitle";
inline constexpr std::string_view position = "AXPosition";
inline constexpr std::string_view size = "AXSize";
inline constexpr std::string_view minimized = "AXMinimized";
inline constexpr std::string_view fullScreen = "AXFullScreen";
inline constexpr std::string_view enhancedUserInterface = "AXEnhancedUserInterface";
inline constexpr std::string_view closeButton = "AXCloseButton";
inline constexpr std::string_view minimizeButton = "AXMinimizeButton";
inline constexpr std::string_view fullScreenButton = "AXFullScreenButton";
inline constexpr std::string_view pressAction = "AXPress";

// An attribute's value when it can be read and has the type asked for; nothing otherwise.
template <typename T>
std::optional<T> read(const AXElement& element, std::string_view attribute) {
    AXValue value;
    if (platform().accessibility.copyAttribute(element, attribute, value) != AXError::success) {
        return std::nullopt;
    }
    if (const T* typed = std::get_if<T>(&value)) return *typed;
    return std::nullopt;
}

// Whether the application accepted the new value.
inline bool write(const AXElement& element, std::string_view attribute, const AXValue& value) {
    return platform().accessibility.setAttribute(element, attribute, value) == AXError::success;
}

// Presses a button; whether the press was carried out.
inline bool press(const AXElement& button) {
    return platform().accessibility.performAction(button, pressAction) == AXError::success;
}

inline void setTimeout(const AXElement& element, float seconds) {
    platform().accessibility.setMessagingTimeout(element, seconds);
}

}  // namespace WindowAttribute

}  // namespace vistrel
