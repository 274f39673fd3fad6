#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ax_element.h"
#include "platform/process.h"

namespace vistrel {

// The accessibility element of a system process found by its bundle identifier (the Dock,
// WindowManager), made once per process with a short messaging time-out and made anew
// when the process it belongs to has gone. Used from one queue only, so it needs no lock.
class ApplicationElement {
  public:
    ApplicationElement(std::string_view bundleIdentifier, float timeout)
        : bundleIdentifier_(bundleIdentifier), timeout_(timeout) {}

    // The cached element while its process lives, else the element of the first running
    // process with the bundle identifier; nothing when none runs (the cache is kept).
    std::optional<AXElement> get();
    // The process the cached element belongs to; 0 until the process was first found.
    Pid pid() const { return pid_; }

  private:
    std::string bundleIdentifier_;
    float timeout_;
    AXElement element_;
    Pid pid_ = 0;
};

}  // namespace vistrel
