#pragma once

#include <string_view>

#include "platform/accessibility.h"
#include "platform/platform.h"

namespace vistrel {

// The accessibility attributes and actions the window-control code reads, writes and
// performs on other applications' windows beyond those AX names, with the few calls it
// needs beyond AX's readers.
namespace WindowAttribute {

// Window actions and frame writes wait this long for a busy application before giving up.
inline constexpr float actionTimeout = 1.0f;

inline constexpr std::string_view windows = "AXWindows";
inline constexpr std::string_view subrole = "AXSubrole";
inline constexpr std::string_view standardWindow = "AXStandardWindow";
inline constexpr std::string_view title = "AXTitle";
// The file a document window shows, as a URL text; absent for windows of other kinds.
inline constexpr std::string_view document = "AXDocument";
inline constexpr std::string_view position = "AXPosition";
inline constexpr std::string_view enhancedUserInterface = "AXEnhancedUserInterface";
inline constexpr std::string_view pressAction = "AXPress";

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
