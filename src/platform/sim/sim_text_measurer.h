#pragma once

#include "platform/sim/cairo_fonts.h"
#include "platform/sim/cairo_surface.h"
#include "platform/text_measurer.h"

namespace vistrel {

// Measures text with the same fonts and glyph layout the simulator draws it with.
class SimTextMeasurer : public TextMeasurer {
  public:
    SimTextMeasurer();
    ~SimTextMeasurer() override;
    SimTextMeasurer(const SimTextMeasurer&) = delete;
    SimTextMeasurer& operator=(const SimTextMeasurer&) = delete;

    TextMetrics measure(const TextRun& run) override;

  private:
    CairoFonts fonts_;
    CairoSurface surface_;
    cairo_t* cr_;
};

}  // namespace vistrel
