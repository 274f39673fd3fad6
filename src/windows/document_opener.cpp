#include "windows/document_opener.h"

#include "base/file_url.h"
#include "base/log.h"
#include "platform/platform.h"
#include "windows/finder_folders.h"
#include "windows/window_mover.h"

namespace vistrel {

namespace {

// The application's window showing the file, if one does yet.
std::optional<OpenWindow> windowShowing(const std::string& bundleID, const std::string& document) {
    const auto app = WindowMover::running(bundleID);
    if (!app) return std::nullopt;
    std::vector<OpenWindow> windows = WindowMover::windows(*app, true);
    FinderFolders::fill(windows);
    for (OpenWindow& window : windows) {
        if (window.document && FileURL::same(*window.document, document)) return window;
    }
    return std::nullopt;
}

}  // namespace

DocumentOpener::Opened DocumentOpener::open(const std::string& bundleID,
                                            const std::string& document, bool logs) {
    Platform& p = platform();
    const std::string name = FileURL::name(document);
    const auto say = [logs](const std::string& what) {
        if (logs) Log::info("layouts: " + what);
    };
    const std::optional<std::string> path = FileURL::path(document);
    if (!path || !p.files.exists(*path)) {
        say(name + " no longer exists, its window is skipped");
        return {std::nullopt, true};
    }
    const auto application = p.workspace.applicationURL(bundleID);
    if (!application) return {};
    OpenConfiguration background;
    background.activates = false;
    // A slow open is not given up: the polls below still wait for the window.
    p.workspace.openDocument(document, *application, background, WindowMover::launchTimeout);
    for (int poll = 0; poll < WindowMover::launchPolls; ++poll) {
        if (auto window = windowShowing(bundleID, document)) {
            say("opened " + name + " to restore a layout");
            return {std::move(window)};
        }
        p.clock.sleep(WindowMover::launchPollInterval);
    }
    say(name + " opened no window in time");
    return {};
}

}  // namespace vistrel
