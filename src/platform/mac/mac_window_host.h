#pragma once

#include "platform/window_host.h"

namespace vistrel {

// Makes the agent's borderless windows with AppKit: buffered, not released when
// closed, transparent, shadowless, each showing a VistrelDisplayListView. Main thread only.
class MacWindowHost : public WindowHost {
  public:
    std::unique_ptr<AgentWindow> makeWindow(WindowDeferral deferral) override;
};

}  // namespace vistrel
