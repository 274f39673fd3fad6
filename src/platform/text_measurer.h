#pragma once

#include "platform/canvas.h"

namespace vistrel {

// How much room one line of text takes, in points.
struct TextMetrics {
    double width = 0;    // the advance, letter spacing included
    double ascent = 0;   // above the baseline
    double descent = 0;  // below the baseline, positive

    double height() const { return ascent + descent; }

    friend bool operator==(const TextMetrics&, const TextMetrics&) = default;
};

// Measures text the way the canvas draws it (CTLineGetTypographicBounds on macOS), so views
// can size their windows and centre their words.
class TextMeasurer {
  public:
    virtual ~TextMeasurer() = default;
    virtual TextMetrics measure(const TextRun& run) = 0;
};

}  // namespace vistrel
