#pragma once

#include <optional>

#include "platform/ax_value.h"

namespace vistrel {

// One real read under the Accessibility grant. AXIsProcessTrusted can answer yes while every
// call of the process fails: after an update or a re-signed build the system keeps the old
// entry switched on in its list, and only removing it and adding it again helps (AXSwift
// issue 39, MiddleClick issue 162: calls answer kAXErrorAPIDisabled under a grant shown as
// on). The read asks the Dock, another process that always runs, since a process can always
// read itself.
namespace GrantProbe {

// Whether the read's answer is how a stale grant fails: "API disabled", or "cannot
// complete" from a Dock that answers everyone else.
bool failsAsStale(AXError error);

// Reads the Dock application's role under the Dock's time-out; nothing when the Dock does not
// run, which proves nothing. Blocks for up to that time-out: call it off the main thread.
std::optional<AXError> readDock();

}  // namespace GrantProbe

}  // namespace vistrel
