#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ax_value.h"
#include "platform/sim/sim_accessibility.h"

namespace vistrel {

class SimDesktop;
struct SimWindow;

// Writes one accessibility attribute of a simulated window ("AXPosition", "AXSize",
// "AXMinimized", "AXFullScreen"), as far as the window lets it be written.
AXError writeWindowAttribute(SimWindow& window, std::string_view attribute, const AXValue& value);

// Presses one of a simulated window's buttons: close, minimize (as the window's minimizing
// behaves) or full screen.
AXError pressWindowPart(SimDesktop& desktop, SimWindow& window, SimWindowPart part);

// What "AXDocument" answers for the window: its document, when its application exposes it.
std::optional<std::string> exposedDocument(SimDesktop& desktop, const SimWindow& window);

}  // namespace vistrel
