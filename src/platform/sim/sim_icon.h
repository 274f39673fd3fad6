#pragma once

#include <memory>

#include "platform/canvas.h"
#include "platform/color.h"

namespace vistrel {

// A simulated application's icon, `pixels` per side: a rounded square in the application's
// colour, lighter at the top, with a white ring in the middle, inset like a macOS icon.
std::shared_ptr<const Image> simApplicationIcon(Color color, int pixels);

}  // namespace vistrel
