#pragma once

#include <string_view>

#include "platform/sim/sim_accessibility.h"
#include "platform/sim/sim_model.h"

namespace vistrel {

// What a part of a simulated window is: whether the window has it, and the subrole its
// element reports ("AXCloseButton"…; empty for the title).
bool hasPart(const SimWindow& window, SimWindowPart part);
std::string_view subroleOf(SimWindowPart part);

}  // namespace vistrel
