#pragma once

#include "platform/status_bar.h"

namespace vistrel {

// NSStatusBar.systemStatusBar and its items. Main thread only.
class MacStatusBar : public StatusBar {
  public:
    std::unique_ptr<StatusItem> makeSquareItem() override;
};

}  // namespace vistrel
