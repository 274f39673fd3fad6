#include <ostream>
#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_screen_renderer.h"
#include "session/engine.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "sim_pictures.h"
#include "tracking/overlay_layout.h"
#include "views/overlay_controller.h"

namespace vistrel {

namespace {

constexpr std::string_view pictureName = "overlay.png";

// Over the hovered button, towards its lower right, so the arrow leaves its glyph in view.
Point pointerOver(const OverlayLayout& layout, Rect fallback) {
    constexpr double towardsLowerRight = 0.27;
    if (layout.items.empty()) return fallback.mid();
    const Rect button = layout.items.front().rect;
    return {button.midX() + button.width * towardsLowerRight,
            button.midY() + button.height * towardsLowerRight};
}

// A user who turned on every button of the strip.
void enableEveryButton() {
    const auto store = Shared::store();
    store->set(std::string(PreferenceKey::showMinimizeButton), true);
    store->set(std::string(PreferenceKey::showMaximizeButton), true);
}

int renderOverlay(SimCommandContext& context) {
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    populateDefaultScene(desktop);
    enableEveryButton();
    desktop.dock().open();
    const auto hovered = largestThumbnail(desktop);
    if (!hovered) {
        context.out << "overlay: Mission Control shows no thumbnail\n";
        return 1;
    }

    const Settings& settings = Settings::shared();
    const OverlayLayout layout = OverlayLayout::make(hovered->frame, settings.buttonSize(),
                                                     settings.enabledButtons(), Engine::buttonGap);
    OverlayController overlay;
    overlay.show(layout);
    overlay.setHovered(OverlayButton::close);

    SimScreenScene scene;
    scene.missionControl = true;
    scene.thumbnails = screenThumbnails(desktop, hovered->window);
    scene.pointer = pointerOver(layout, hovered->frame);
    const auto path = context.outputDirectory / pictureName;
    if (!SimScreenRenderer(desktop).writePng(scene, path)) return 1;

    context.out << "== the hover overlay ==\n  " << layout.items.size() << " buttons of "
                << settings.buttonSize() << " points over " << describeRect(hovered->frame)
                << ", close hovered\n  wrote " << path.string() << "\n\n";
    return 0;
}

}  // namespace

VISTREL_SIM_COMMAND("overlay", "renders the hover overlay over a thumbnail", 30, renderOverlay);

}  // namespace vistrel
