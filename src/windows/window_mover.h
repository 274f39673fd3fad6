#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ax_element.h"
#include "platform/executor.h"
#include "platform/geometry.h"
#include "platform/process.h"
#include "platform/workspace.h"
#include "windows/open_window.h"

namespace vistrel {

// The layouts' view of other applications' windows and their one way of moving them:
// the visible windows in stacking order, the windows of one application, frame reads and
// writes, and the full-screen flag. Everything but queue() makes blocking accessibility
// calls and runs on queue(), never on the main thread.
struct WindowMover {
    using OpenWindow = vistrel::OpenWindow;

    // One on-screen window of the window server, front to back.
    struct ZOrderEntry {
        Pid pid = 0;
        Rect bounds;

        friend bool operator==(const ZOrderEntry&, const ZOrderEntry&) = default;
    };

    static constexpr std::string_view queueLabel = "com.quillmarsh.vistrel.layouts";
    // Smaller windows are tool strips and the like, not windows a layout arranges.
    static constexpr double minimumWidth = 60;
    static constexpr double minimumHeight = 40;
    // How far the window server's bounds may stray from the accessibility frame and still
    // be the same window when ranking.
    static constexpr double rankTolerance = 2.0;
    // Listing an application's windows gives up sooner than acting on one.
    static constexpr float enumerationTimeout = 0.5f;
    // A launch waits this long for the application to open, then looks for its first
    // window every launchPollInterval seconds, at most launchPolls times (about as long).
    static constexpr double launchTimeout = 5.0;
    static constexpr double launchPollInterval = 0.25;
    static constexpr int launchPolls = 20;

    // The layouts' serial work queue, made on first use.
    static std::shared_ptr<SerialQueue> queue();

    // The visible, unminimized standard windows of ordinary applications other than the
    // agent, front-most first.
    static std::vector<OpenWindow> visibleWindows();
    // One window as the lists give it, whatever its kind and size (its frame empty when it
    // cannot be read); none when its application no longer runs or has no bundle identifier.
    static std::optional<OpenWindow> window(const WindowRef& window);
    // The standard windows of one application, in the application's own order.
    static std::vector<OpenWindow> windows(const RunningApplication& app, bool includeMinimized);
    // The window server's on-screen windows of the normal layer, front to back.
    static std::vector<ZOrderEntry> zOrder();
    // The window's frame: "AXFrame", else "AXPosition" with "AXSize".
    static std::optional<Rect> frame(const AXElement& window);
    // Moves and resizes a window, switching the application's enhanced user interface off
    // for the move (it animates and fights frame writes) and on again afterwards. Whether
    // the size was accepted.
    static bool setFrame(Pid pid, const AXElement& window, Rect frame);
    // Writes position, size, then position again (a window held back by the screen edge
    // while growing lands right the second time). Whether the size was accepted; false
    // without writing when the rectangle holds a non-finite number.
    static bool writeFrame(const AXElement& window, Rect frame);
    // "AXDocument" when it is a local file's URL; nothing otherwise.
    static std::optional<std::string> documentOf(const AXElement& window);
    // "AXFullScreen"; false when it cannot be read.
    static bool isFullScreen(const AXElement& window);

    // The first running application with this bundle identifier.
    static std::optional<RunningApplication> running(const std::string& bundleID);
    // Opens an installed application in the background (not brought to the front) so that
    // a layout can place its windows, and waits for its first window. The application once
    // it runs, even without a window; nothing when it is not installed or never came up.
    // Blocks for up to launchTimeout plus the polls.
    static std::optional<RunningApplication> launch(const std::string& bundleID);
};

}  // namespace vistrel
