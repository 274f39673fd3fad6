#include "windows/window_mover.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "base/file_url.h"
#include "base/log.h"
#include "platform/platform.h"
#include "tracking/ax.h"
#include "windows/lazy_queue.h"
#include "windows/window_attribute.h"

namespace vistrel {

namespace {

using OpenWindow = WindowMover::OpenWindow;
using ZOrderEntry = WindowMover::ZOrderEntry;

constexpr std::size_t unranked = std::numeric_limits<std::size_t>::max();

LazyQueue& layoutsQueue() {
    static LazyQueue queue(std::string(WindowMover::queueLabel), QualityOfService::userInitiated);
    return queue;
}

bool isRegularAndShown(const RunningApplication& app, Pid ownPid) {
    return app.activationPolicy == ActivationPolicy::regular && !app.hidden && app.pid != ownPid;
}

bool isListable(const Rect& frame) {
    return frame.width >= WindowMover::minimumWidth && frame.height >= WindowMover::minimumHeight;
}

// The index of the first window-server entry that is this window; height is not compared,
// as the window server and the application may disagree about it.
std::size_t rank(const OpenWindow& window, const std::vector<ZOrderEntry>& order) {
    const auto near = [](double a, double b) {
        return std::abs(a - b) < WindowMover::rankTolerance;
    };
    for (std::size_t i = 0; i < order.size(); ++i) {
        const ZOrderEntry& entry = order[i];
        if (entry.pid == window.ref.pid && near(entry.bounds.minX(), window.frame.minX()) &&
            near(entry.bounds.minY(), window.frame.minY()) &&
            near(entry.bounds.width, window.frame.width)) {
            return i;
        }
    }
    return unranked;
}

bool isMinimized(const AXElement& window) {
    return AX::value<bool>(window, AX::minimized).value_or(false);
}

OpenWindow described(const AXElement& window, const RunningApplication& app, Rect frame,
                     bool minimized) {
    return OpenWindow{{window, app.pid},
                      app.bundleIdentifier.value_or(std::string()),
                      app.localizedName.value_or(std::string()),
                      AX::string(window, WindowAttribute::title).value_or(std::string()),
                      frame,
                      minimized,
                      WindowMover::documentOf(window)};
}

std::optional<OpenWindow> describe(const AXElement& window, const RunningApplication& app,
                                   bool includeMinimized) {
    if (AX::string(window, WindowAttribute::subrole) != WindowAttribute::standardWindow) {
        return std::nullopt;
    }
    const auto frame = WindowMover::frame(window);
    if (!frame || !isListable(*frame)) return std::nullopt;
    const bool minimized = isMinimized(window);
    if (minimized && !includeMinimized) return std::nullopt;
    return described(window, app, *frame, minimized);
}

bool isFinite(const Rect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
           std::isfinite(rect.height);
}

}  // namespace

// A web page's or a remote address says nothing a layout could open again.
std::optional<std::string> WindowMover::documentOf(const AXElement& window) {
    std::optional<std::string> document = AX::string(window, WindowAttribute::document);
    if (document && !FileURL::path(*document)) return std::nullopt;
    return document;
}

std::optional<OpenWindow> WindowMover::window(const WindowRef& window) {
    const auto app = platform().workspace.application(window.pid);
    if (!app || !app->bundleIdentifier) return std::nullopt;
    return described(window.element, *app, frame(window.element).value_or(Rect{}),
                     isMinimized(window.element));
}

std::shared_ptr<SerialQueue> WindowMover::queue() {
    return layoutsQueue().get();
}

std::vector<OpenWindow> WindowMover::visibleWindows() {
    Workspace& workspace = platform().workspace;
    const Pid ownPid = workspace.ownPid();
    std::vector<OpenWindow> found;
    for (const RunningApplication& app : workspace.runningApplications()) {
        if (!isRegularAndShown(app, ownPid)) continue;
        std::vector<OpenWindow> more = windows(app, false);
        found.insert(found.end(), std::make_move_iterator(more.begin()),
                     std::make_move_iterator(more.end()));
    }
    const std::vector<ZOrderEntry> order = zOrder();
    std::vector<std::pair<std::size_t, OpenWindow>> ranked;
    for (OpenWindow& window : found) {
        const std::size_t r = rank(window, order);
        ranked.emplace_back(r, std::move(window));
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<OpenWindow> sorted;
    for (auto& [r, window] : ranked)
        sorted.push_back(std::move(window));
    return sorted;
}

std::vector<OpenWindow> WindowMover::windows(const RunningApplication& app, bool includeMinimized) {
    if (!app.bundleIdentifier) return {};
    const AXElement element = platform().accessibility.application(app.pid);
    WindowAttribute::setTimeout(element, enumerationTimeout);
    std::vector<OpenWindow> found;
    for (const AXElement& window :
         AX::elements(element, WindowAttribute::windows, enumerationTimeout)) {
        if (auto described = describe(window, app, includeMinimized)) {
            found.push_back(std::move(*described));
        }
    }
    return found;
}

std::vector<ZOrderEntry> WindowMover::zOrder() {
    constexpr std::uint32_t options =
        WindowListOption::onScreenOnly | WindowListOption::excludeDesktopElements;
    constexpr std::int64_t normalLayer = 0;
    std::vector<ZOrderEntry> order;
    const auto list = platform().windowServer.windowList(options);
    if (!list) return order;
    for (const WindowDescription& entry : *list) {
        if (entry.layer != normalLayer || !entry.ownerPid || !entry.bounds) continue;
        order.push_back({*entry.ownerPid, *entry.bounds});
    }
    return order;
}

std::optional<Rect> WindowMover::frame(const AXElement& window) {
    if (auto frame = AX::frame(window)) return frame;
    const auto origin = AX::value<Point>(window, WindowAttribute::position);
    if (!origin) return std::nullopt;
    const auto size = AX::value<Size>(window, AX::size);
    if (!size) return std::nullopt;
    return Rect::of(*origin, *size);
}

bool WindowMover::setFrame(Pid pid, const AXElement& window, Rect frame) {
    WindowAttribute::setTimeout(window, WindowAttribute::actionTimeout);
    const AXElement app = platform().accessibility.application(pid);
    WindowAttribute::setTimeout(app, WindowAttribute::actionTimeout);
    const bool enhanced =
        AX::value<bool>(app, WindowAttribute::enhancedUserInterface).value_or(false);
    if (enhanced) WindowAttribute::write(app, WindowAttribute::enhancedUserInterface, false);
    const bool sized = writeFrame(window, frame);
    if (enhanced) WindowAttribute::write(app, WindowAttribute::enhancedUserInterface, true);
    return sized;
}

bool WindowMover::writeFrame(const AXElement& window, Rect frame) {
    if (!isFinite(frame)) return false;
    WindowAttribute::write(window, WindowAttribute::position, frame.origin());
    const bool sized = WindowAttribute::write(window, AX::size, frame.size());
    WindowAttribute::write(window, WindowAttribute::position, frame.origin());
    return sized;
}

bool WindowMover::isFullScreen(const AXElement& window) {
    return AX::value<bool>(window, AX::fullScreen).value_or(false);
}

std::optional<RunningApplication> WindowMover::running(const std::string& bundleID) {
    for (RunningApplication& app : platform().workspace.runningApplications()) {
        if (app.bundleIdentifier == bundleID && !app.terminated) return std::move(app);
    }
    return std::nullopt;
}

std::optional<RunningApplication> WindowMover::launch(const std::string& bundleID) {
    Workspace& workspace = platform().workspace;
    const auto url = workspace.applicationURL(bundleID);
    if (!url) return std::nullopt;
    OpenConfiguration background;
    background.activates = false;
    // A slow open is not given up: the polls below still wait for the application.
    workspace.launchApplication(*url, background, launchTimeout);
    for (int poll = 0; poll < launchPolls; ++poll) {
        platform().clock.sleep(launchPollInterval);
        const auto app = running(bundleID);
        if (app && !windows(*app, true).empty()) break;
    }
    auto app = running(bundleID);
    if (app) {
        Log::info("layouts: opened " + app->localizedName.value_or(bundleID) +
                  " to restore a layout");
    }
    return app;
}

}  // namespace vistrel
