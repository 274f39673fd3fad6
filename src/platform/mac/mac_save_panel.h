#pragma once

#include "platform/save_panel.h"

namespace vistrel {

// NSSavePanel.
class MacSavePanel : public SavePanel {
  public:
    std::optional<std::string> run(const std::string& proposedName) override;
};

}  // namespace vistrel
