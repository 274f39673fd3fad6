#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/geometry.h"

namespace vistrel {

class DisplayList;

// One borderless, transparent, shadowless window of the agent's own (an NSWindow or
// NSPanel whose content view replays a display list with Core Graphics). Frames are in
// AppKit's global coordinates: origin at the bottom-left of the primary display.
class AgentWindow {
public:
    virtual ~AgentWindow() = default;

    virtual void setFrame(Rect frame, bool display) = 0;
    virtual Rect frame() const = 0;
    // NSWindow.level (the overlay uses 1000, above Mission Control).
    virtual void setLevel(int level) = 0;
    // NSWindow.collectionBehavior bits.
    virtual void setCollectionBehavior(std::uint64_t behavior) = 0;
    virtual void setIgnoresMouseEvents(bool ignores) = 0;
    virtual void setAlpha(double alpha) = 0;
    virtual double alpha() const = 0;
    // Animates alphaValue to `alpha` over `seconds`; `done` runs on the main thread after.
    virtual void fade(double alpha, double seconds, std::function<void()> done) = 0;
    // The content: a display list in the window's own coordinates. Replaces the previous one
    // and marks the view for redrawing.
    virtual void setContent(std::shared_ptr<const DisplayList> content) = 0;
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
    // NSWindow.isOnActiveSpace.
    virtual bool isOnActiveSpace() const = 0;
};

// Makes the agent's windows.
class WindowHost {
public:
    virtual ~WindowHost() = default;
    virtual std::unique_ptr<AgentWindow> makeWindow() = 0;
};

}  // namespace vistrel
