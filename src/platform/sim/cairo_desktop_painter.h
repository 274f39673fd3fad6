#pragma once

#include <cairo.h>

#include <string>
#include <vector>

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/sim/cairo_canvas.h"

namespace vistrel {

// What the painter needs to know of one application window.
struct SimPaintedWindow {
    Rect frame;  // accessibility coordinates
    std::string title;
    std::string application;
    Color accent;  // the application's colour, used for its content and Dock tile
};

// Paints the simulated desktop behind the agent's windows: wallpaper, application windows,
// menu bar and Dock, and Mission Control's thumbnails. A picture for people to look at: it
// follows the look of macOS loosely and has no behaviour of its own. Coordinates are
// accessibility coordinates of the primary screen, in points.
class CairoDesktopPainter {
  public:
    CairoDesktopPainter(cairo_t* cr, CairoFonts& fonts, Rect screen);

    // Mission Control dims the wallpaper and shows the Spaces bar along the top.
    void wallpaper(bool missionControl);
    void window(const SimPaintedWindow& window);
    // The menu bar with the active application's name, light or, in the dark appearance,
    // dark with white text.
    void menuBar(const std::string& activeApplication, bool dark = false);
    void dock(const std::vector<Color>& tiles);
    // A window drawn scaled into a Mission Control thumbnail, its label underneath; the
    // highlighted one (under the pointer) ringed in blue.
    void thumbnail(Rect frame, const std::string& label, const SimPaintedWindow* window,
                   bool highlighted);
    // The arrow pointer with its tip at the point.
    void pointer(Point tip);
    // The soft shadow a window casts, for a window of the given corner radius.
    void windowShadow(Rect frame, double radius);

    // A colour for an application, stable for its bundle identifier.
    static Color accentFor(const std::string& bundleIdentifier);

  private:
    void centeredText(const TextRun& run, double midX, double baseline);

    cairo_t* cr_;
    CairoCanvas canvas_;
    Rect screen_;
};

}  // namespace vistrel
