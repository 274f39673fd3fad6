#pragma once

#include "platform/ax_element.h"
#include "platform/process.h"

namespace vistrel {

// A window of another application: its accessibility element (copies share and keep it)
// and the process that owns it. Two references are equal when they name the same element
// of the same process.
struct WindowRef {
    AXElement element;
    Pid pid = 0;

    friend bool operator==(const WindowRef&, const WindowRef&) = default;
};

}  // namespace vistrel
