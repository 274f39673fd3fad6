#pragma once

#include <ostream>

namespace vistrel {

class SimDesktop;

// Prints what the thumbnail reader finds in Mission Control now, and the window the agent
// finds at each thumbnail's centre.
void printThumbnails(SimDesktop& desktop, std::ostream& out);

}  // namespace vistrel
