#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/text_measurer.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel {

// A run of text in one of the kit's colours: the string, its font, its colour and its
// letter spacing. Section labels use a kern of 1.4.
struct DFKitText {
    std::string string;
    Font font;
    DFKitColor color;
    double kern = 0;

    // The run to draw in an appearance.
    TextRun run(Appearance appearance) const {
        return {string, font, color.resolved(appearance), kern};
    }
    TextMetrics measure() const;
    // Draws the text with its left end at `x`, centred on the line `midY`.
    void draw(Canvas& canvas, Appearance appearance, double x, double midY) const;
    // The text cut short with an ellipsis so that it fits `width`; itself when it fits.
    DFKitText fitted(double width) const;
    // The text broken at spaces into lines no wider than `width` (a word longer than the
    // width stands on a line of its own).
    std::vector<std::string> wrapped(double width) const;
};

}  // namespace vistrel
