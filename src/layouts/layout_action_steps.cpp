#include "layouts/layout_action_steps.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

#include "base/log.h"
#include "layouts/display_match.h"
#include "layouts/layout_match.h"
#include "platform/platform.h"
#include "tracking/ax.h"
#include "windows/document_opener.h"
#include "windows/finder_folders.h"
#include "windows/screens.h"
#include "windows/window_attribute.h"
#include "windows/window_mover.h"

namespace vistrel::LayoutActionSteps {

namespace {

// Capture records the whole area when the screen leaves no room inside the gap, so that
// the window comes back filling the screen rather than shrunk to nothing.
constexpr UnitRect wholeArea{0, 0, 1, 1};

std::string pidText(Pid pid) {
    return "(pid " + std::to_string(pid) + ")";
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// A layout names the screen of each window by the display's identifier: the UUID outlives
// renames, resolution changes and reconnections, and it is what restore looks screens up by.
std::optional<std::string> displayOf(const ScreenInfo& screen) {
    if (screen.id.empty()) return std::nullopt;
    return screen.id;
}

UnitRect capturedRect(Rect frame, Rect area, double gap) {
    const double half = gap * 0.5;
    const Rect inner = area.insetBy(half, half);
    if (inner.width <= 0 || inner.height <= 0) return wholeArea;
    return UnitRect::of(frame, area, gap);
}

std::vector<std::string> distinctBundleIDs(const std::vector<SavedLayout::Window>& windows) {
    std::vector<std::string> ids;
    for (const SavedLayout::Window& window : windows) {
        if (std::find(ids.begin(), ids.end(), window.bundleID) == ids.end()) {
            ids.push_back(window.bundleID);
        }
    }
    return ids;
}

// The running application, launched first when the user allows it.
std::optional<RunningApplication> applicationFor(const std::string& bundleID,
                                                 const RestoreRequest& request) {
    auto app = WindowMover::running(bundleID);
    if (!app && request.launchApps) app = WindowMover::launch(bundleID);
    if (!app && request.logs) {
        Log::info("layouts: " + bundleID + " is not running, its windows are skipped");
    }
    return app;
}

// The windows of the layout's applications, minimized ones included, application by
// application in the layout's order.
std::vector<OpenWindow> openWindows(const RestoreRequest& request) {
    std::vector<OpenWindow> open;
    for (const std::string& bundleID : distinctBundleIDs(request.layout.windows)) {
        const auto app = applicationFor(bundleID, request);
        if (!app) continue;
        if (app->hidden) platform().workspace.unhide(app->pid);
        std::vector<OpenWindow> more = WindowMover::windows(*app, true);
        open.insert(open.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
    }
    return open;
}

// The screen the window was saved on, else the first; none without screens.
const ScreenInfo* targetScreen(const std::optional<std::string>& display,
                               const std::vector<ScreenInfo>& screens) {
    if (screens.empty()) return nullptr;
    if (display) {
        for (const ScreenInfo& screen : screens) {
            if (screen.id == *display) return &screen;
        }
    }
    return &screens.front();
}

// Brings a minimized window back first: a minimized window ignores frame writes.
bool place(const OpenWindow& window, const UnitRect& rect, const ScreenInfo& screen, double gap) {
    const AXElement& element = window.ref.element;
    if (window.minimized) {
        WindowAttribute::setTimeout(element, WindowAttribute::actionTimeout);
        WindowAttribute::write(element, AX::minimized, false);
    }
    return WindowMover::setFrame(window.ref.pid, element, rect.frame(screen.visible, gap));
}

std::vector<LayoutMatch::Open> matchKeys(const std::vector<OpenWindow>& open) {
    std::vector<LayoutMatch::Open> keys;
    for (const OpenWindow& window : open)
        keys.push_back({window.bundleID, window.title, window.document});
    return keys;
}

// Finder is asked for its folders only when the layout has a Finder window saved on one.
bool holdsFinderFolder(const std::vector<SavedLayout::Window>& saved) {
    return std::ranges::any_of(saved, [](const SavedLayout::Window& window) {
        return window.bundleID == FinderFolders::bundleID && window.document;
    });
}

// The new window of a saved window's file, opened again because its window has gone; none
// when it showed no file, its application may not be launched, or the file is gone (counted).
std::optional<OpenWindow> reopen(const SavedLayout::Window& saved, const RestoreRequest& request,
                                 int& gone) {
    if (!saved.document) return std::nullopt;
    if (!request.launchApps && !WindowMover::running(saved.bundleID)) return std::nullopt;
    DocumentOpener::Opened opened =
        DocumentOpener::open(saved.bundleID, *saved.document, request.logs);
    if (opened.gone) ++gone;
    return std::move(opened.window);
}

// Where a window goes in a layout: its slot on a screen.
struct Slot {
    UnitRect rect;
    ScreenInfo screen;
};

// The windows as a layout saves them, each with the file it shows and a Finder window with
// the folder it shows (Finder asked once for them all), in the slot `slotOf` gives it; a
// window it gives none is left out.
template <typename SlotOf>
std::vector<SavedLayout::Window> saved(std::vector<OpenWindow> windows, SlotOf slotOf) {
    FinderFolders::fill(windows);
    std::vector<SavedLayout::Window> saved;
    for (const OpenWindow& window : windows) {
        const std::optional<Slot> slot = slotOf(window);
        if (!slot) continue;
        saved.push_back({window.bundleID, window.app, window.title, slot->rect,
                         displayOf(slot->screen), window.document});
    }
    return saved;
}

// Keeps how a window is before it moves.
void remember(Before& before, const WindowRef& window) {
    for (LayoutUndo::Window& read : LayoutUndo::read({window}))
        before.push_back(std::move(read));
}

}  // namespace

std::optional<SavedLayout> layoutOf(std::vector<SavedLayout::Window> windows,
                                    const std::vector<ScreenInfo>& screens) {
    if (windows.empty()) return std::nullopt;
    std::vector<std::string> names;
    for (const SavedLayout::Window& window : windows)
        names.push_back(window.app);
    return SavedLayout{UUID::random(), SavedLayout::autoName(names), std::move(windows),
                       SavedLayout::dateSinceReference(platform().clock.now()),
                       DisplayMatch::displaysOf(screens)};
}

std::optional<SavedLayout> capture(const std::vector<ScreenInfo>& screens, double gap) {
    const auto slotOf = [&screens, gap](const OpenWindow& window) -> std::optional<Slot> {
        const auto screen = Screens::holding(window.frame, screens);
        if (!screen) return std::nullopt;
        return Slot{capturedRect(window.frame, screen->visible, gap), *screen};
    };
    return layoutOf(saved(WindowMover::visibleWindows(), slotOf), screens);
}

LayoutActions::Restored restore(const RestoreRequest& request, Before& before) {
    const std::vector<SavedLayout::Window>& saved = request.layout.windows;
    std::vector<OpenWindow> open = openWindows(request);
    if (holdsFinderFolder(saved)) FinderFolders::fill(open);
    const auto pairing = LayoutMatch::pair(saved, matchKeys(open));
    LayoutActions::Restored restored;
    restored.windows = saved.size();
    for (std::size_t i = 0; i < saved.size() && i < pairing.size(); ++i) {
        const ScreenInfo* screen = targetScreen(saved[i].display, request.screens);
        if (screen == nullptr) continue;
        std::optional<OpenWindow> reopened;
        if (!pairing[i]) reopened = reopen(saved[i], request, restored.documentsGone);
        if (!pairing[i] && !reopened) continue;
        const OpenWindow& partner = reopened ? *reopened : open[*pairing[i]];
        remember(before, partner.ref);
        if (place(partner, saved[i].rect, *screen, request.gap)) {
            restored.moved.push_back(partner.ref);
        }
    }
    if (request.logs) {
        Log::info("layouts: restored \"" + request.layout.name + "\", " + restored.counts());
    }
    return restored;
}

Arranged arrange(const std::vector<LayoutActions::Placement>& placements, const ScreenInfo& screen,
                 double gap, Before& before) {
    Arranged arranged;
    // A window whose application no longer runs or has no bundle identifier is placed but not
    // recorded: it could never be paired again.
    std::vector<OpenWindow> recorded;
    for (const LayoutActions::Placement& placement : placements) {
        const WindowRef& ref = placement.ref;
        if (WindowMover::isFullScreen(ref.element)) continue;
        remember(before, ref);
        if (WindowMover::setFrame(ref.pid, ref.element,
                                  placement.rect.frame(screen.visible, gap))) {
            arranged.moved.push_back(ref);
        }
        if (auto window = WindowMover::window(ref)) recorded.push_back(std::move(*window));
    }
    const auto slotOf = [&placements, &screen](const OpenWindow& window) -> std::optional<Slot> {
        const auto placed =
            std::ranges::find(placements, window.ref, &LayoutActions::Placement::ref);
        if (placed == placements.end()) return std::nullopt;
        return Slot{placed->rect, screen};
    };
    arranged.windows = saved(std::move(recorded), slotOf);
    Log::info("layouts: arranged " + std::to_string(arranged.windows.size()) + " windows");
    return arranged;
}

std::optional<LayoutActions::Snapped> snap(const WindowRef& window, SnapKey key,
                                           const std::vector<ScreenInfo>& screens, double gap,
                                           Before& before) {
    if (WindowMover::isFullScreen(window.element)) {
        Log::info("layouts: not snapping a full-screen window " + pidText(window.pid));
        return std::nullopt;
    }
    const auto frame = WindowMover::frame(window.element);
    if (!frame) {
        Log::info("layouts: not snapping a window without a readable frame " + pidText(window.pid));
        return std::nullopt;
    }
    // A window on no screen (its screen just went away) is snapped on the first one.
    auto screen = Screens::holding(*frame, screens);
    if (!screen && !screens.empty()) screen = screens.front();
    if (!screen) {
        Log::info("layouts: not snapping a window without a screen " + pidText(window.pid));
        return std::nullopt;
    }
    const Rect area = screen->visible;
    const UnitRect target = Snap::next(UnitRect::of(*frame, area, gap), key);
    const Rect targetFrame = target.frame(area, gap);
    before.push_back({window, *frame, false});
    const bool moved = WindowMover::setFrame(window.pid, window.element, targetFrame);
    Log::info(std::string("layouts: ") + (moved ? "did" : "FAILED to") + " snap window " +
              pidText(window.pid) + " to " + lowerCase(Snap::name(target)));
    return LayoutActions::Snapped{target, targetFrame};
}

}  // namespace vistrel::LayoutActionSteps
