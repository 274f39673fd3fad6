#pragma once

#include <string>

#include "platform/geometry.h"

namespace vistrel {

class SimDesktop;

// The scene vistrel-sim shows and scenario tests start from: the Dock and five everyday
// applications (Safari, Notes, Terminal, Mail, Finder) with six windows of plausible sizes
// on one 1440×900 screen, overlapping as on a real desktop, and two windows on a second
// desktop. Mission Control is closed.
void populateDefaultScene(SimDesktop& desktop);

// A rectangle as vistrel-sim prints it: "(x, y) w×h", whole points.
std::string describeRect(Rect rect);

}  // namespace vistrel
