#pragma once

#include <cairo.h>

#include "platform/sim/cairo_fonts.h"

namespace vistrel {

class SimDesktop;
struct SimOpenMenu;
class SimKeyPanel;
class SimStatusItem;

// Paints what hangs from the menu bar: the status items at its right end (template images in the
// bar's ink, highlighted while their panel is open), the agent's key panels with their shadow, and
// an open native menu in the system's appearance. Coordinates are the primary screen's, top-left
// origin, in points.
class SimMenuBarPainter {
  public:
    SimMenuBarPainter(cairo_t* cr, CairoFonts& fonts, SimDesktop& desktop);

    void statusItems();
    void panels();
    void openMenu();

  private:
    void statusItem(const SimStatusItem& item);
    void panel(const SimKeyPanel& panel);
    // A soft shadow under a rounded rectangle, as AppKit gives a panel.
    void shadow(Rect rect, double radius);
    // AppKit's global rectangle flipped into the screen's top-left space.
    Rect onScreen(Rect appKit) const;

    cairo_t* cr_;
    CairoFonts& fonts_;
    SimDesktop& desktop_;
    bool dark_;
};

}  // namespace vistrel
