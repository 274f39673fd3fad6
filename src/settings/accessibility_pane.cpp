#include "settings/accessibility_pane.h"

#include <string>

#include "platform/platform.h"

namespace vistrel {

void AccessibilityPane::open() {
    platform().workspace.openURL(std::string(url));
}

}  // namespace vistrel
