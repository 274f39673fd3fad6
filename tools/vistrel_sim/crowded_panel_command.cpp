#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "platform/sim/sim_scene.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "ui/kit/dfkit_scroll_view.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

// A 13-inch MacBook Air at its default scale, the Dock along the bottom.
constexpr Rect smallDisplay{0, 0, 1280, 800};
constexpr double dockHeight = 70;
// Ten layouts a user might keep; the panel lists the first nine.
constexpr std::array<std::string_view, 10> layoutNames = {
    "Morning mail", "Writing", "Code review", "Research",     "Design",
    "Standup",      "Reading", "Budget",      "Travel plans", "Everything"};
constexpr std::string_view lastListed = "Travel plans";
// A two-finger swipe up on the trackpad, in points.
constexpr double trackpadSwipe = -40;
// More than the panel has rows that take a click.
constexpr int maxPresses = 40;

// The status panel with more rows than a small display has room for: ten saved layouts, the
// update row and the Accessibility button on a 1280×800 display. The panel stops above the
// Dock; the saved layouts scroll, by the trackpad and by the arrow keys.
class CrowdedPanelSession {
  public:
    explicit CrowdedPanelSession(SimCommandContext& context) : rig_(context, "crowded-panel") {
        ScreenDescription& screen = rig_.desktop().screens().front();
        screen.frame = smallDisplay;
        screen.visibleFrame = {0, dockHeight, smallDisplay.width,
                               smallDisplay.height - simMenuBarHeight - dockHeight};
        rig_.desktop().trusted = false;
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        // Safari on the left half, Notes on the right.
        const std::vector<SavedLayout::Window> halves = {
            {"com.apple.Safari", "Safari", "", {0, 0, 0.5, 1}, std::nullopt},
            {"com.apple.Notes", "Notes", "", {0.5, 0, 0.5, 1}, std::nullopt}};
        for (std::string_view name : layoutNames)
            LayoutStore::add(*Shared::store(), {{}, std::string(name), halves, 0});
        menu_ = StatusMenuController::make();
        menu_->updater = StatusMenuController::Updater{[] {}, [] { return false; }, [](bool) {}};
    }

    int play() {
        return rig_.play(
            "the status panel on a 1280×800 display with ten saved layouts",
            {{"open", "click the status item: the panel stops above the Dock",
              [this] { return open(); }},
             {"scrolled", "swipe up over the layouts: they scroll, nothing else moves",
              [this] { return scroll(); }},
             {"arrow-keys", "press the down arrow to the last layout listed: it scrolls into sight",
              [this] { return arrowDown(std::string(lastListed)); }},
             {"dark", "the same in the dark appearance", [this] { return dark(); }}},
            [] { return std::optional<SimWindowId>(); });
    }

  private:
    DFKitScrollView* layouts() {
        if (!menu_->panel()) return nullptr;
        for (const auto& row : menu_->panel()->content().rows()) {
            if (auto* column = dynamic_cast<DFKitScrollView*>(row.get())) return column;
        }
        return nullptr;
    }

    bool report() {
        DFKitScrollView* column = layouts();
        if (!column) return rig_.fail("the panel shows no saved layouts");
        rig_.out() << "  the panel hangs at " << describeRect(rig_.statusPanel()->frame())
                   << "; the layouts show " << column->frame().height << " of "
                   << column->contentHeight(column->frame().width) << " points, scrolled by "
                   << column->offset() << "\n";
        return true;
    }

    bool open() {
        menu_->clicked();
        rig_.desktop().executor().runUntilIdle();
        if (!rig_.statusPanel() || !rig_.statusPanel()->isVisible())
            return rig_.fail("the panel did not open");
        if (rig_.statusPanel()->frame().minY() < rig_.desktop().screens().front().visibleFrame.y)
            return rig_.fail("the panel runs past the bottom of the screen");
        return report();
    }

    bool scroll() {
        if (!layouts()) return rig_.fail("the panel shows no saved layouts");
        rig_.statusPanel()->scroll(layouts()->frameInRoot().mid(), trackpadSwipe, true);
        return report();
    }

    bool arrowDown(const std::string& label) {
        DFKitStatusPanel& panel = *menu_->panel();
        for (int press = 0; press < maxPresses; ++press) {
            if (DFKitView* highlighted = panel.highlighted()) {
                const std::optional<AccessibilityNode> node = highlighted->accessibilityNode();
                if (node && node->label == label) return report();
            }
            rig_.statusPanel()->pressKey(KeyCode::downArrow);
        }
        return rig_.fail("the arrow keys never reached " + label);
    }

    bool dark() {
        rig_.desktop().appearance().set(Appearance::dark);
        return true;
    }

    SessionRig rig_;
    std::shared_ptr<StatusMenuController> menu_;
};

int playCrowdedPanel(SimCommandContext& context) {
    return CrowdedPanelSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("crowded-panel",
                    "the status panel on a 1280×800 display with ten saved layouts: it scrolls", 65,
                    playCrowdedPanel);

}  // namespace vistrel
