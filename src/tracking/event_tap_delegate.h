#pragma once

#include <cstdint>

#include "platform/geometry.h"

namespace vistrel {

// Who the event tap hands pointer and key events to, on the main thread. Locations are in
// accessibility coordinates; flags are the event's modifier flags.
class EventTapDelegate {
  public:
    virtual ~EventTapDelegate() = default;

    virtual void tapMouseMoved(Point location) = 0;
    virtual void tapMouseDragged(Point location) = 0;
    // True when the press was consumed: it and its release are swallowed.
    virtual bool tapMouseDown(Point location, std::uint64_t flags) = 0;
    // A release whose press was not consumed.
    virtual void tapMouseUp(Point location) = 0;
    // True when the key was consumed: it and its key-up are swallowed.
    virtual bool tapKeyDown(std::int64_t code, std::uint64_t flags) = 0;
    virtual void tapFlagsChanged(std::uint64_t flags) = 0;
};

}  // namespace vistrel
