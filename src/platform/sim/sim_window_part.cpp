#include "platform/sim/sim_window_part.h"

namespace vistrel {

bool hasPart(const SimWindow& window, SimWindowPart part) {
    switch (part) {
        case SimWindowPart::closeButton:
            return window.hasCloseButton;
        case SimWindowPart::minimizeButton:
            return window.hasMinimizeButton;
        case SimWindowPart::fullScreenButton:
            return window.hasFullScreenButton;
        case SimWindowPart::title:
            return true;
    }
    return false;
}

std::string_view subroleOf(SimWindowPart part) {
    switch (part) {
        case SimWindowPart::closeButton:
            return "AXCloseButton";
        case SimWindowPart::minimizeButton:
            return "AXMinimizeButton";
        case SimWindowPart::fullScreenButton:
            return "AXFullScreenButton";
        case SimWindowPart::title:
            return "";
    }
    return "";
}

}  // namespace vistrel
