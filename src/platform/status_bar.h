#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/geometry.h"

namespace vistrel {

class DisplayList;

// One NSStatusItem of the system status bar and its button. Main thread only.
class StatusItem {
  public:
    virtual ~StatusItem() = default;
    // The button's image: an NSImage of `size` points drawn by replaying the list (flipped),
    // marked as a template so the menu bar tints it.
    virtual void setTemplateImage(std::shared_ptr<const DisplayList> image, Size size) = 0;
    // NSStatusBarButton.setAccessibilityLabel.
    virtual void setAccessibilityLabel(const std::string& label) = 0;
    // The button's target and action, sent on left-mouse-down and right-mouse-down
    // (sendAction(on: [.leftMouseDown, .rightMouseDown])).
    virtual void setAction(std::function<void()> action) = 0;
    // NSStatusItem.isVisible.
    virtual void setVisible(bool visible) = 0;
    virtual bool isVisible() const = 0;
    // NSStatusBarButton.highlight(_:).
    virtual void setHighlighted(bool highlighted) = 0;
    // The button's frame on screen (convertToScreen of its window frame), AppKit's global
    // coordinates; nothing when the button has no window (hidden, or no room in the bar).
    virtual std::optional<Rect> buttonFrame() const = 0;
};

// NSStatusBar.system.
class StatusBar {
  public:
    virtual ~StatusBar() = default;
    // statusItem(withLength: NSStatusItem.squareLength); null when the bar refuses one.
    virtual std::unique_ptr<StatusItem> makeSquareItem() = 0;
};

}  // namespace vistrel
