#include "platform/sim/sim_application_attribute.h"

#include "platform/sim/sim_desktop.h"

namespace vistrel {

AXError writeApplicationAttribute(SimDesktop& desktop, Pid pid, std::string_view attribute,
                                  const AXValue& value) {
    const bool* on = std::get_if<bool>(&value);
    if (attribute == "AXEnhancedUserInterface") {
        if (on == nullptr) return AXError::illegalArgument;
        desktop.application(pid)->enhancedUserInterface = *on;
        return AXError::success;
    }
    if (attribute == "AXFrontmost") {
        if (on == nullptr) return AXError::illegalArgument;
        if (*on) desktop.bringApplicationToFront(pid);
        return AXError::success;
    }
    return AXError::attributeUnsupported;
}

}  // namespace vistrel
