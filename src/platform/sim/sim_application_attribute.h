#pragma once

#include <string_view>

#include "platform/ax_element.h"
#include "platform/ax_value.h"
#include "platform/process.h"

namespace vistrel {

class SimDesktop;

// Writes one accessibility attribute of a simulated application's element:
// "AXEnhancedUserInterface", and "AXFrontmost", which brings every window of the
// application forward, as activating it with all its windows does.
AXError writeApplicationAttribute(SimDesktop& desktop, Pid pid, std::string_view attribute,
                                  const AXValue& value);

}  // namespace vistrel
