#include "platform/sim/sim_screen_renderer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/log.h"
#include "platform/display_list.h"
#include "platform/sim/cairo_canvas.h"
#include "platform/sim/cairo_desktop_painter.h"
#include "platform/sim/cairo_glass.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_menu_bar_painter.h"

namespace vistrel {

namespace {

constexpr double deskGrey = 0.11;

SimPaintedWindow painted(SimDesktop& desktop, const SimWindow& window) {
    const SimApplication* app = desktop.application(window.pid);
    return {window.frame, window.title, app != nullptr ? app->name : std::string(),
            CairoDesktopPainter::accentFor(app != nullptr ? app->bundleIdentifier : "")};
}

// Application windows sit on the normal layer; the Dock's own windows (its bar, Mission
// Control) are on higher layers and are drawn by the painter's decorations instead.
bool isApplicationWindow(SimDesktop& desktop, const SimWindow& window) {
    return window.layer == 0 && desktop.isOnScreen(window);
}

// The front-most regular application with a window on screen names the menu bar.
std::string frontApplication(SimDesktop& desktop) {
    for (const SimWindow& window : desktop.windows()) {
        if (!isApplicationWindow(desktop, window)) continue;
        if (const SimApplication* app = desktop.application(window.pid)) return app->name;
    }
    return "Finder";
}

bool isDark(SimDesktop& desktop) {
    return desktop.appearance().current() == Appearance::dark;
}

// The smallest rectangle holding every display.
Rect boundsOf(const std::vector<Rect>& frames) {
    if (frames.empty()) return {};
    double minX = frames.front().minX(), minY = frames.front().minY();
    double maxX = frames.front().maxX(), maxY = frames.front().maxY();
    for (const Rect& frame : frames) {
        minX = std::min(minX, frame.minX());
        minY = std::min(minY, frame.minY());
        maxX = std::max(maxX, frame.maxX());
        maxY = std::max(maxY, frame.maxY());
    }
    return {minX, minY, maxX - minX, maxY - minY};
}

std::vector<Color> dockTiles(SimDesktop& desktop) {
    std::vector<Color> tiles;
    for (const SimApplication& app : desktop.applications()) {
        if (app.activationPolicy == ActivationPolicy::regular && !app.terminated &&
            app.bundleIdentifier != SimDock::bundleIdentifier) {
            tiles.push_back(CairoDesktopPainter::accentFor(app.bundleIdentifier));
        }
    }
    return tiles;
}

void paintDesktop(CairoDesktopPainter& painter, SimDesktop& desktop) {
    const auto& windows = desktop.windows();  // front to back
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (isApplicationWindow(desktop, *it)) painter.window(painted(desktop, *it));
    }
    painter.menuBar(frontApplication(desktop), isDark(desktop));
}

void paintThumbnails(CairoDesktopPainter& painter, SimDesktop& desktop,
                     const std::vector<SimScreenThumbnail>& thumbnails) {
    for (const SimScreenThumbnail& thumb : thumbnails) {
        const SimWindow* window = thumb.window ? desktop.window(*thumb.window) : nullptr;
        if (window == nullptr) {
            painter.thumbnail(thumb.frame, thumb.label, nullptr, thumb.highlighted);
            continue;
        }
        const SimPaintedWindow source = painted(desktop, *window);
        painter.thumbnail(thumb.frame, thumb.label, &source, thumb.highlighted);
    }
}

// The agent's windows in drawing order: visible ones only, lower levels first, windows of
// one level in the order they were made.
std::vector<const SimAgentWindow*> visibleAgentWindows(SimDesktop& desktop) {
    std::vector<const SimAgentWindow*> windows;
    for (const SimAgentWindow* window : std::as_const(desktop.windowHost()).windows()) {
        if (window->isVisible() && window->content()) windows.push_back(window);
    }
    std::stable_sort(
        windows.begin(), windows.end(),
        [](const SimAgentWindow* a, const SimAgentWindow* b) { return a->level() < b->level(); });
    return windows;
}

// One agent window: its AppKit frame flipped into the screen's top-left space, its content
// clipped to the frame over its glass, if it has any, and painted with the window's alpha.
void paintAgentWindow(cairo_t* cr, const SimAgentWindow& window, double primaryHeight,
                      CairoFonts& fonts) {
    const Rect frame = window.frame();
    const Rect onScreen{frame.minX(), primaryHeight - frame.maxY(), frame.width, frame.height};
    cairo_save(cr);
    cairo_translate(cr, onScreen.x, onScreen.y);
    const Rect bounds{0, 0, onScreen.width, onScreen.height};
    // The glass shows what lay beneath before the window is drawn.
    std::optional<CairoGlass> glass;
    if (window.glassRadius()) glass.emplace(cr, bounds);
    cairo_rectangle(cr, 0, 0, onScreen.width, onScreen.height);
    cairo_clip(cr);
    cairo_push_group(cr);
    if (glass) glass->paint(cr, fonts, *window.glassRadius());
    drawDisplayList(cr, *window.content(), onScreen.size(), fonts);
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, std::clamp(window.alpha(), 0.0, 1.0));
    cairo_restore(cr);
}

}  // namespace

SimScreenRenderer::SimScreenRenderer(SimDesktop& desktop, std::filesystem::path fontDirectory)
    : desktop_(desktop), fonts_(std::move(fontDirectory)) {}

CairoSurface SimScreenRenderer::render(const SimScreenScene& scene) {
    const std::vector<Rect> frames = desktop_.accessibilityScreenFrames();
    const Rect screen = frames.empty() ? Rect{} : frames.front();
    const bool every = scene.everyDisplay && !scene.missionControl;
    const Rect area = every ? boundsOf(frames) : screen;
    CairoSurface surface(static_cast<int>(std::ceil(area.width * scene.scale)),
                         static_cast<int>(std::ceil(area.height * scene.scale)));
    cairo_t* cr = cairo_create(surface.get());
    cairo_scale(cr, scene.scale, scene.scale);
    cairo_translate(cr, -area.x, -area.y);
    cairo_rectangle(cr, area.x, area.y, area.width, area.height);
    cairo_clip(cr);
    if (every) {
        // Around displays of different sizes, the dark of the desk.
        cairo_set_source_rgb(cr, deskGrey, deskGrey, deskGrey);
        cairo_paint(cr);
    }

    // The other displays' wallpapers go first, under any window reaching across to them.
    const std::size_t displays = every ? frames.size() : 1;
    for (std::size_t i = 1; i < displays; ++i)
        CairoDesktopPainter(cr, fonts_, frames[i]).wallpaper(false);
    CairoDesktopPainter painter(cr, fonts_, screen);
    painter.wallpaper(scene.missionControl);
    if (scene.missionControl) {
        paintThumbnails(painter, desktop_, scene.thumbnails);
    } else {
        paintDesktop(painter, desktop_);
    }
    for (std::size_t i = 1; i < displays; ++i)
        CairoDesktopPainter(cr, fonts_, frames[i])
            .menuBar(frontApplication(desktop_), isDark(desktop_));
    // The Dock stays on screen in Mission Control.
    painter.dock(dockTiles(desktop_));
    for (const SimAgentWindow* window : visibleAgentWindows(desktop_)) {
        paintAgentWindow(cr, *window, screen.height, fonts_);
    }
    SimMenuBarPainter menuBar(cr, fonts_, desktop_);
    // Mission Control covers the menu bar; the agent's panel closes when it opens.
    if (!scene.missionControl) menuBar.statusItems();
    menuBar.panels();
    menuBar.openMenu();
    if (scene.pointer) painter.pointer(*scene.pointer);
    cairo_destroy(cr);
    return surface;
}

bool SimScreenRenderer::writePng(const SimScreenScene& scene, const std::filesystem::path& path) {
    if (render(scene).writePng(path)) return true;
    Log::error("sim: could not write " + path.string());
    return false;
}

}  // namespace vistrel
