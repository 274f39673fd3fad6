#pragma once

#include <cairo.h>

#include "platform/geometry.h"
#include "platform/sim/cairo_fonts.h"
#include "platform/sim/cairo_surface.h"

namespace vistrel {

// The simulator's stand-in for the heads-up-display material that macOS puts behind a
// window with glass: what lies beneath the window, blurred, its colours a little richer,
// under a dark veil, inside the window's rounded corners.
class CairoGlass {
  public:
    // How far the blur spreads, in points, and how often the box blur runs (three box
    // passes come close to a Gaussian).
    static constexpr double blurRadius = 20;
    static constexpr int blurPasses = 3;
    // Colours move this far away from their grey: vibrancy keeps the backdrop's hues.
    static constexpr double saturation = 1.4;
    // The dark veil over the blurred backdrop.
    static constexpr double veilGrey = 0.1;
    static constexpr double veilAlpha = 0.7;

    // Takes a blurred copy of what the context's target shows under `frame` (the context's
    // current user space) and around it, as far as the blur reaches.
    CairoGlass(cairo_t* cr, Rect frame);

    // Paints the glass over `frame` with corners of `radius`, in the same space as the copy
    // was taken in; the target may since have been redirected to a group.
    void paint(cairo_t* cr, CairoFonts& fonts, double radius) const;

  private:
    // Whole device pixels of the target.
    struct Region {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };

    static Region regionBeneath(cairo_t* cr, Rect frame);
    static CairoSurface blurredCopy(cairo_t* cr, Region region);

    Rect frame_;
    Region region_;
    CairoSurface backdrop_;
};

}  // namespace vistrel
