#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "layouts/layout_store.h"
#include "platform/sim/sim_scene.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

// Long enough for a layout's windows to be moved and raised.
constexpr double restoreSettle = 2.0;

// Two windows side by side: the layout the session's user saved earlier.
SavedLayout sideBySide() {
    return {{},
            "Safari · Notes",
            {{"com.apple.Safari", "", "", {0, 0, 0.5, 1}, std::nullopt},
             {"com.apple.Notes", "", "", {0.5, 0, 0.5, 1}, std::nullopt}},
            0};
}

// A user working the status item's panel on the default scene: opening it, switching a
// shortcut off, reopening it, the More options menu, restoring a saved layout and hiding the
// item. Each step is pictured in the light and the dark appearance.
class MenuSession {
  public:
    explicit MenuSession(SimCommandContext& context) : rig_(context, "menu") {
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        LayoutStore::add(*Shared::store(), sideBySide());
        menu_ = StatusMenuController::make();
    }
    int play();

  private:
    struct Step {
        std::string_view picture;
        std::string_view summary;
        bool (MenuSession::*run)();
    };

    bool open();
    bool switchHideOff();
    bool reopen();
    bool moreOptions();
    bool restoreLayout();
    bool hideItem();

    bool clickItem();
    bool pictures(int number, std::string_view picture);

    SessionRig rig_;
    std::shared_ptr<StatusMenuController> menu_;
};

int MenuSession::play() {
    const Step steps[] = {
        {"open", "click the status item: the panel opens", &MenuSession::open},
        {"hide-off", "switch Command-H off", &MenuSession::switchHideOff},
        {"reopened", "close the panel and open it again: Command-H stays off",
         &MenuSession::reopen},
        {"more", "click the dots: the More options menu", &MenuSession::moreOptions},
        {"restored", "restore \"Safari · Notes\" from the panel", &MenuSession::restoreLayout},
        {"hidden", "choose Hide This Menu Item", &MenuSession::hideItem},
    };
    rig_.out() << "== the status item and its panel on the default scene ==\n";
    int number = 0;
    for (const Step& step : steps) {
        rig_.pause();
        rig_.out() << ++number << ". " << step.summary << "\n";
        if (!(this->*step.run)() || !pictures(number, step.picture)) return 1;
    }
    rig_.out() << "\n";
    return 0;
}

bool MenuSession::pictures(int number, std::string_view picture) {
    SimAppearance& appearance = rig_.desktop().appearance();
    appearance.set(Appearance::light);
    if (!rig_.takePicture(number, picture, std::nullopt)) return false;
    appearance.set(Appearance::dark);
    const bool dark = rig_.takePicture(number, std::string(picture) + "-dark", std::nullopt);
    appearance.set(Appearance::light);
    return dark;
}

bool MenuSession::clickItem() {
    const auto& items = rig_.desktop().statusBar().items();
    if (items.empty() || !items.front()->isVisible()) return rig_.fail("no status item to click");
    items.front()->click();
    rig_.desktop().executor().runUntilIdle();
    return true;
}

bool MenuSession::open() {
    if (!clickItem()) return false;
    if (!rig_.statusPanel() || !rig_.statusPanel()->isVisible())
        return rig_.fail("the panel did not open");
    rig_.out() << "  the panel hangs at " << describeRect(rig_.statusPanel()->frame()) << " with "
               << rig_.statusPanel()->accessibilityNodes().size() << " accessible elements\n";
    return true;
}

bool MenuSession::switchHideOff() {
    if (!rig_.clickPanelRow("Hide app")) return false;
    rig_.out() << "  hotkey.hide.disabled = "
               << (Settings::shared().hotkeyDisabled(Hotkey::hide) ? "true" : "false") << "\n";
    return true;
}

bool MenuSession::reopen() {
    if (!clickItem()) return false;
    rig_.pause();
    if (!open()) return false;
    for (const AccessibilityNode& node : rig_.statusPanel()->accessibilityNodes()) {
        if (node.label == "Hide app" && node.value == true)
            return rig_.fail("Command-H shows on again");
    }
    return true;
}

bool MenuSession::moreOptions() {
    if (!rig_.clickPanelRow("More options")) return false;
    const auto& menu = rig_.desktop().menus().openMenu();
    if (!menu) return rig_.fail("no menu appeared");
    rig_.out() << "  the menu holds " << menu->items.size() << " items\n";
    return true;
}

bool MenuSession::restoreLayout() {
    rig_.desktop().menus().dismiss();
    if (!rig_.clickPanelRow("Safari · Notes")) return false;
    rig_.desktop().executor().advance(restoreSettle);
    if (rig_.statusPanel()->isVisible()) return rig_.fail("the panel stayed open");
    for (const SimWindow& window : rig_.desktop().windows()) {
        if (rig_.desktop().isOnScreen(window))
            rig_.out() << "    \"" << window.title << "\" " << describeRect(window.frame) << "\n";
    }
    return true;
}

bool MenuSession::hideItem() {
    if (!open() || !rig_.clickPanelRow("More options")) return false;
    if (!rig_.desktop().menus().choose("Hide This Menu Item"))
        return rig_.fail("the menu has no Hide This Menu Item");
    if (rig_.desktop().statusBar().items().front()->isVisible())
        return rig_.fail("the item is still in the menu bar");
    rig_.out() << "  the item left the menu bar\n";
    return true;
}

int playMenuSession(SimCommandContext& context) {
    return MenuSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("menu",
                    "plays a status menu session: open, switch, more options, restore, hide", 60,
                    playMenuSession);

}  // namespace vistrel
