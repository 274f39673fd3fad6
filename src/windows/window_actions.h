#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "base/hotkey.h"
#include "platform/ax_element.h"
#include "platform/executor.h"
#include "platform/geometry.h"
#include "platform/process.h"

namespace vistrel {

// Carries out one hot-key action on a window of another application, off the main thread
// on the accessibility queue, and writes one log line saying whether it worked. The
// operations other than perform() block for accessibility calls and sleeps, and run on
// that queue.
struct WindowActions {
    static constexpr std::string_view queueLabel = "com.quillmarsh.vistrel.accessibility";
    // A minimize is asked for this often before it counts as refused.
    static constexpr int minimizeAttempts = 6;
    // How long an application gets to minimize the window before it is checked, and the
    // pause before asking again.
    static constexpr double minimizeSettle = 0.12;
    static constexpr double minimizeRetryPause = 0.15;
    // How long Mission Control gets to close after Escape before full screen is asked for,
    // and how long the window gets to enter or leave full screen before it is checked.
    static constexpr double missionControlExit = 0.7;
    static constexpr double fullScreenSettle = 0.35;
    // A window within this many points of the fill target in position and size counts as
    // filling the screen, so the next fill puts it back where it was.
    static constexpr double fillTolerance = 6.0;

    // Runs the action on the accessibility queue and returns at once. Main thread.
    static void perform(const AXElement& window, Pid pid, Hotkey hotkey);

    // Presses the close button of every window of the application; whether a press worked.
    static bool closeAll(Pid pid);
    // Minimizes through "AXMinimized", falling back to the minimize button, checking each
    // attempt; whether the window ended up minimized.
    static bool minimize(const AXElement& window);
    // Full screen, or filling the screen when "maximizeMode" is "fill".
    static bool maximize(const AXElement& window);
    // Fills the visible frame of the window's screen; a window already filling it goes back
    // to the frame it had before its fill.
    static bool fillScreen(const AXElement& window);
    // Hides every ordinary application except the kept one and the agent; whether any was.
    static bool hideOthers(Pid keep);

    // The serial queue every action runs on, made on first use.
    static std::shared_ptr<SerialQueue> queue();
};

}  // namespace vistrel
