#pragma once

#include "platform/pasteboard.h"

namespace vistrel {

// NSPasteboard.generalPasteboard.
class MacPasteboard : public Pasteboard {
  public:
    bool copyText(const std::string& text) override;
};

}  // namespace vistrel
