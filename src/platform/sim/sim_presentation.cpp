#include "platform/sim/sim_presentation.h"

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

constexpr int dockGeneration = 26;
constexpr int windowManagerGeneration = 27;

}  // namespace

void present(SimDesktop& desktop, SimPresentation presentation) {
    const bool windowManager = presentation == SimPresentation::numberedThumbnails ||
                               presentation == SimPresentation::unnumberedThumbnails;
    desktop.systemInfo().version.major = windowManager ? windowManagerGeneration : dockGeneration;
    desktop.dock().hitTestAnswersThumbnail = presentation == SimPresentation::hitTestThumbnail;
    desktop.dock().thumbnailsNameWindows = presentation != SimPresentation::unnumberedThumbnails;
}

std::string_view name(SimPresentation presentation) {
    switch (presentation) {
        case SimPresentation::hitTestWindow:
            return "macOS26_hitTestWindow";
        case SimPresentation::hitTestThumbnail:
            return "macOS26_hitTestThumbnail";
        case SimPresentation::numberedThumbnails:
            return "macOS27_numberedThumbnails";
        case SimPresentation::unnumberedThumbnails:
            return "macOS27_unnumberedThumbnails";
    }
    return "unknown";
}

}  // namespace vistrel
