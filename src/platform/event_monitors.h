#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vistrel {

// A key-down as a local monitor sees it.
struct KeyPress {
    // NSEvent.charactersIgnoringModifiers, UTF-8.
    std::string characters;
    // NSEvent.modifierFlags masked with deviceIndependentFlagsMask (0xFFFF0000): Caps Lock
    // 0x10000, Shift 0x20000, Control 0x40000, Option 0x80000, Command 0x100000 and above.
    std::uint64_t modifierFlags = 0;
};

// NSEvent's event monitors. Handlers run on the main thread. Main thread only.
class EventMonitors {
  public:
    // A local key-down handler answers true to swallow the event, false to pass it on.
    using KeyHandler = std::function<bool(const KeyPress&)>;

    virtual ~EventMonitors() = default;
    // addGlobalMonitorForEvents(matching: [.leftMouseDown, .rightMouseDown]): mouse-downs
    // that go to other applications. Answers a token; 0 when no monitor could be added.
    virtual std::uint64_t addOutsideMouseDownMonitor(std::function<void()> handler) = 0;
    // addLocalMonitorForEvents(matching: .keyDown). Answers a token; 0 on failure.
    virtual std::uint64_t addLocalKeyDownMonitor(KeyHandler handler) = 0;
    // removeMonitor(_:); an unknown or zero token is ignored.
    virtual void removeMonitor(std::uint64_t token) = 0;
};

}  // namespace vistrel
