#pragma once

#include <vector>

#include "platform/ax_element.h"
#include "platform/process.h"
#include "tracking/ax.h"
#include "tracking/thumbnail_match.h"

namespace vistrel {

// The windows Mission Control may show: those of the running regular applications that are
// not hidden, neither minimized, as the accessibility interface lists them (AXWindows of
// each application element, with its title and frame). Read on the hover queue, once per
// opening; each application's calls give up after the enumeration's time-out, so a hung
// application costs that long once.
class WindowCatalog {
  public:
    // Enumerating an application's windows gives up after this long.
    static constexpr float applicationTimeout = 0.5f;

    // Reads every window again, leaving out the agent's own.
    void enumerate(Pid ownPid);

    // The windows' facts, for ThumbnailMatch::fit, and the window each stands for.
    const std::vector<ThumbnailMatch::Window>& facts() const { return facts_; }
    const AX::WindowHit& window(std::size_t index) const { return windows_[index]; }

  private:
    void appendApplication(Pid pid, const std::string& bundleIdentifier);

    std::vector<ThumbnailMatch::Window> facts_;
    std::vector<AX::WindowHit> windows_;
};

}  // namespace vistrel
