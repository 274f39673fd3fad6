#include "platform/sim/sim_text_measurer.h"

#include "platform/sim/cairo_canvas.h"

namespace vistrel {

SimTextMeasurer::SimTextMeasurer() : surface_(1, 1), cr_(cairo_create(surface_.get())) {}

SimTextMeasurer::~SimTextMeasurer() {
    cairo_destroy(cr_);
}

TextMetrics SimTextMeasurer::measure(const TextRun& run) {
    CairoCanvas canvas(cr_, fonts_, false);
    const double width = canvas.textWidth(run);
    cairo_set_font_face(cr_, fonts_.face(run.font));
    cairo_set_font_size(cr_, run.font.size);
    cairo_font_extents_t extents{};
    cairo_font_extents(cr_, &extents);
    return {width, extents.ascent, extents.descent};
}

}  // namespace vistrel
