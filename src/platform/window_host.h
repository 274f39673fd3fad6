#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/geometry.h"

namespace vistrel {

class DisplayList;

// Levels of the agent's windows (NSWindow.level), above Mission Control.
namespace AgentWindowLevel {
inline constexpr int shelf = 999;
inline constexpr int overlay = 1000;
inline constexpr int outline = 1001;
inline constexpr int badge = 1001;
inline constexpr int hud = 1002;
}  // namespace AgentWindowLevel

// NSWindow.collectionBehavior bits the agent uses.
namespace WindowCollectionBehavior {
inline constexpr std::uint64_t canJoinAllSpaces = 1 << 0;
inline constexpr std::uint64_t stationary = 1 << 4;
inline constexpr std::uint64_t ignoresCycle = 1 << 6;
inline constexpr std::uint64_t fullScreenAuxiliary = 1 << 8;
// Every agent window: on all Spaces, left alone by Exposé and window cycling, allowed over
// full-screen windows (0x151).
inline constexpr std::uint64_t agentOverlay =
    canJoinAllSpaces | stationary | ignoresCycle | fullScreenAuxiliary;
// The status panel, like a menu: on whichever Space is active, over full-screen
// applications, left out of window cycling (0x141).
inline constexpr std::uint64_t menuBarPanel = canJoinAllSpaces | ignoresCycle | fullScreenAuxiliary;
}  // namespace WindowCollectionBehavior

// One borderless, transparent, shadowless window of the agent's own (an NSWindow whose
// content view replays a display list with Core Graphics), buffered, not released when
// closed, created with an empty frame and hidden; deferred or not as its maker asks. Frames are in
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
    // Sets alphaValue at once, stopping a fade in flight (through the animator with a
    // duration of 0, as NSAnimatablePropertyContainer documents).
    virtual void setAlpha(double alpha) = 0;
    virtual double alpha() const = 0;
    // Animates alphaValue to `alpha` over `seconds` (NSAnimationContext); `done` runs on the
    // main thread when the animation ends, also when it was stopped early.
    virtual void fade(double alpha, double seconds, std::function<void()> done) = 0;
    // The content: a display list in the window's own coordinates. Replaces the previous one
    // and marks the view for redrawing.
    virtual void setContent(std::shared_ptr<const DisplayList> content) = 0;
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;
    // NSWindow.isOnActiveSpace.
    virtual bool isOnActiveSpace() const = 0;
    // Puts frosted glass behind the content: an NSVisualEffectView with the heads-up-display
    // material, blending behind the window, always active, in the dark appearance, its
    // corners masked to `cornerRadius`. The content is drawn over the glass.
    virtual void setGlass(double cornerRadius) = 0;
};

// When AppKit creates the window's device: at once, or deferred until it is first shown.
enum class WindowDeferral { deferred, immediate };

// Makes the agent's windows.
class WindowHost {
  public:
    virtual ~WindowHost() = default;
    virtual std::unique_ptr<AgentWindow> makeWindow(WindowDeferral deferral) = 0;
};

}  // namespace vistrel
