#pragma once

#include <string>

#include "platform/canvas.h"

namespace vistrel {

// Placing the shelf's short lines of text: measured with the platform's text measurer, so
// that they are centred and cut the way they are drawn.
struct ShelfText {
    static double width(const TextRun& run);
    // The run cut at the end, with an ellipsis, to fit `maxWidth`; unchanged if it fits.
    static TextRun fitted(TextRun run, double maxWidth);
    // Draws the run centred horizontally on `midX`, its baseline at `baseline`.
    static void drawCentred(Canvas& canvas, const TextRun& run, double midX, double baseline);
    // The baseline that centres the run's ascent and descent vertically on `midY`.
    static double centredBaseline(const TextRun& run, double midY);
};

}  // namespace vistrel
