#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/geometry.h"

namespace vistrel {

class DisplayList;

// The NSAccessibilityRole values the agent's drawn views take.
namespace AccessibilityRole {
inline constexpr std::string_view button = "AXButton";
inline constexpr std::string_view checkBox = "AXCheckBox";
inline constexpr std::string_view staticText = "AXStaticText";
}  // namespace AccessibilityRole

// One accessibility element of a drawn view (an NSAccessibilityElement child of the view
// that replays the display list). `frame` is in the content's flipped coordinates.
struct AccessibilityNode {
    std::string role;           // NSAccessibilityRole: "AXButton", "AXCheckBox", …
    std::string label;          // accessibilityLabel
    std::optional<bool> value;  // accessibilityValue of a checkbox: on or off
    Rect frame;
    std::function<void()> press;  // accessibilityPerformPress; none for static text
    std::string help;             // accessibilityHelp: more words, read after a pause
};

// What a key panel reports, on the main thread. Points are in the content's flipped
// coordinates (origin at the top-left, y down).
struct KeyPanelEvents {
    std::function<void(Point)> mouseDown;
    std::function<void(Point)> mouseUp;
    // The pointer moved over the content; nothing when it left.
    std::function<void(std::optional<Point>)> mouseMoved;
    // scrollWheel(_:) over the content: NSEvent.scrollingDeltaY (positive when the user
    // scrolls to see what is above) and whether it counts points (a trackpad, a precise
    // mouse) rather than lines (hasPreciseScrollingDeltas).
    std::function<void(Point, double deltaY, bool precise)> scrolled;
    // keyDown(with:) while the panel is key and none of its views takes the keyboard:
    // NSEvent.keyCode and its modifierFlags (device-independent part). Answers whether the
    // panel used the key; a key it leaves goes on to NSPanel's own keyDown(with:), so Escape
    // still ends as cancelOperation(_:).
    std::function<bool(std::int64_t keyCode, std::uint64_t modifierFlags)> keyDown;
    // cancelOperation(_:): Escape while the panel is key.
    std::function<void()> escape;
    // windowDidResignKey.
    std::function<void()> resignedKey;
};

// A borderless NSPanel of the agent's own that can become key, with a shadow, whose
// content view replays a display list and accepts the first mouse. Frames are in AppKit's
// global coordinates. Main thread only.
class KeyPanel {
  public:
    virtual ~KeyPanel() = default;
    virtual void setEvents(KeyPanelEvents events) = 0;
    virtual void setFrame(Rect frame) = 0;
    virtual Rect frame() const = 0;
    // The content, flipped, replacing the previous one; the view is marked for redrawing.
    virtual void setContent(std::shared_ptr<const DisplayList> content) = 0;
    // makeKeyAndOrderFront(nil). The panel is non-activating: it takes the keyboard without
    // taking the frontmost application's focus, as a menu does.
    virtual void showKey() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
    // invalidateShadow(): the shadow follows the content's new outline.
    virtual void invalidateShadow() = 0;
    // The content view's accessibility children, replacing the previous ones.
    virtual void setAccessibilityNodes(std::vector<AccessibilityNode> nodes) = 0;
    // NSAccessibility.post(element: node, notification: .valueChanged).
    virtual void announceValueChanged(std::size_t node) = 0;
};

// Makes key panels. Null when the panel could not be made.
class KeyPanelHost {
  public:
    virtual ~KeyPanelHost() = default;
    virtual std::unique_ptr<KeyPanel> makePanel() = 0;
};

}  // namespace vistrel
