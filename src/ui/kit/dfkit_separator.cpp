#include "ui/kit/dfkit_separator.h"

#include <cmath>

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

void DFKitSeparator::draw(Canvas& canvas, Appearance appearance) const {
    constexpr double hairline = 1;
    const double y = std::floor((height - hairline) / 2);
    canvas.fill(Path::rect({0, y, bounds().width, hairline}), DFKit::line.resolved(appearance));
}

}  // namespace vistrel
