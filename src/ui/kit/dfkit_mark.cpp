#include "ui/kit/dfkit_mark.h"

namespace vistrel {

namespace {
constexpr double designSize = 100;
// The dot in the corner the mark leaves empty, clear of its bars by a few units.
constexpr Rect dotRect{6, 6, 24, 24};
}  // namespace

std::string_view rawValue(DFKitMark mark) {
    switch (mark) {
        case DFKitMark::vistrel:
            return "vistrel";
    }
    return "vistrel";
}

Path markPath(DFKitMark mark) {
    switch (mark) {
        case DFKitMark::vistrel:
            break;
    }
    // A tall bar, a wide bar on its right and a disc under the wide bar: an L of two
    // rounded bars holding a circle.
    return Path()
        .addRoundedRect({33.5, 33.5, 15, 53}, 7.5)
        .addRoundedRect({52.5, 33.5, 34, 15}, 7.5)
        .addOval({52.5, 52.5, 34, 34});
}

std::shared_ptr<const DisplayList> markImage(DFKitMark mark, double size, Color color,
                                             bool dotted) {
    RecordingCanvas canvas(true);
    canvas.scale(size / designSize, size / designSize);
    canvas.fill(markPath(mark), color);
    if (dotted) canvas.fill(Path::oval(dotRect), color);
    return canvas.finish();
}

}  // namespace vistrel
