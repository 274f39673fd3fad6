#pragma once

#include "platform/path.h"

namespace vistrel {

// The shelf's small symbols as paths to stroke, drawn the same on every platform and in
// every font: the Command key's looped square, a plus and a cross. Coordinates are y down.
struct ShelfGlyphs {
    // The Command key symbol filling a square `side` points wide around `centre`: a square
    // whose sides run on into four loops.
    static Path command(Point centre, double side);
    // A plus with arms `arm` points long from the centre.
    static Path plus(Point centre, double arm);
    // An × with arms reaching `arm` points from the centre along each axis.
    static Path cross(Point centre, double arm);
};

}  // namespace vistrel
