#pragma once

#include "platform/native_menu.h"

namespace vistrel {

// NSMenu popped up in a key panel's content view. Main thread only.
class MacNativeMenus : public NativeMenus {
  public:
    void popUp(std::vector<NativeMenuItem> items, KeyPanel& panel, Point point) override;
};

}  // namespace vistrel
