#include <memory>
#include <string>

#include "base/hotkey.h"
#include "layouts/display_follower.h"
#include "layouts/layout_store.h"
#include "layouts/layout_undo.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

constexpr std::uint32_t studio = 2;
constexpr Size studioSize{1920, 1080};
constexpr std::int64_t zKey = 6;
// Long enough for every stage of a display change to arrive and the follower to settle.
constexpr double settle = DisplayFollower::settleSeconds + 2;
// Long enough for a restore's windows to be moved and raised.
constexpr double restoreSettle = 2;

// Where the user keeps Safari and Notes at the desk: side by side on the Studio Display; the
// other windows stay on the laptop.
constexpr Rect safariAtTheDesk{1448, 33, 1152, 969};
constexpr Rect notesAtTheDesk{2608, 33, 744, 969};

// A laptop taken to and from a desk with a Studio Display: the layout saved at the desk comes
// back when the display is plugged in again, first offered in the status panel, then (with
// "layouts.followDisplays" set to "automatic") at once, and a restore is undone with
// Command-Z in Mission Control.
class DisplaysSession {
  public:
    explicit DisplaysSession(SimCommandContext& context) : rig_(context, "displays") {
        rig_.showEveryDisplay();
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        menu_ = StatusMenuController::make();
        DisplayFollower::shared().start();
    }
    ~DisplaysSession() { DisplayFollower::shared().stop(); }
    DisplaysSession(const DisplaysSession&) = delete;
    DisplaysSession& operator=(const DisplaysSession&) = delete;
    int play();

  private:
    bool atTheDesk();
    bool unplugged();
    bool onTheLaptop();
    bool pluggedInAgain();
    bool restored();
    bool undone();
    bool backOnTheLaptop();
    bool automatic();

    void plug();
    void unplug();
    SimWindow* window(const std::string& title);
    void place(const std::string& title, Rect frame);
    void describe(const std::string& title);

    SessionRig rig_;
    std::shared_ptr<StatusMenuController> menu_;
};

int DisplaysSession::play() {
    const auto step = [this](bool (DisplaysSession::*run)()) {
        return [this, run] { return (this->*run)(); };
    };
    return rig_.play(
        "a laptop coming and going from a desk with a second display",
        {
            {"desk", "at the desk with the Studio Display: Save Current Layout",
             step(&DisplaysSession::atTheDesk)},
            {"unplugged", "unplug the display: macOS gathers its windows on the laptop",
             step(&DisplaysSession::unplugged)},
            {"laptop", "work on the laptop for a while", step(&DisplaysSession::onTheLaptop)},
            {"offered", "plug the display in again: the panel offers the desk's layout",
             step(&DisplaysSession::pluggedInAgain)},
            {"restored", "click the offer", step(&DisplaysSession::restored)},
            {"undo", "in Mission Control, press Command-Z", step(&DisplaysSession::undone)},
            {"undone", "leave Mission Control: the windows are where they were",
             step(&DisplaysSession::backOnTheLaptop)},
            {"automatic", "with Restore their layout chosen, unplug and plug in again",
             step(&DisplaysSession::automatic)},
        },
        [] { return std::optional<SimWindowId>(); });
}

SimWindow* DisplaysSession::window(const std::string& title) {
    for (const SimWindow& window : rig_.desktop().windows()) {
        if (window.title == title && !window.closed) return rig_.desktop().window(window.id);
    }
    return nullptr;
}

void DisplaysSession::place(const std::string& title, Rect frame) {
    if (SimWindow* found = window(title)) found->frame = frame;
}

void DisplaysSession::describe(const std::string& title) {
    const SimWindow* found = window(title);
    if (found == nullptr) return;
    const Rect& f = found->frame;
    rig_.out() << "  " << title << " at " << f.x << "," << f.y << " " << f.width << "×" << f.height
               << "\n";
}

void DisplaysSession::plug() {
    rig_.desktop().plugDisplay(studio, studioSize);
    rig_.desktop().executor().advance(settle);
}

void DisplaysSession::unplug() {
    rig_.desktop().unplugDisplay(studio);
    rig_.desktop().executor().advance(settle);
}

bool DisplaysSession::atTheDesk() {
    plug();
    place("Start Page", safariAtTheDesk);
    place("Notes", notesAtTheDesk);
    if (!rig_.openStatusPanel() || !rig_.clickPanelRow("Save Current Layout")) return false;
    const auto saved = LayoutStore::load(*Shared::store());
    if (saved.empty()) return rig_.fail("nothing was saved");
    rig_.out() << "  saved \"" << saved.back().name << "\" on " << saved.back().displays.size()
               << " displays\n";
    return true;
}

bool DisplaysSession::unplugged() {
    unplug();
    describe("Start Page");
    describe("Notes");
    return true;
}

bool DisplaysSession::onTheLaptop() {
    place("Start Page", {0, 25, 1440, 805});
    place("Notes", {760, 110, 640, 480});
    rig_.desktop().bringToFront(window("Notes")->id);
    return true;
}

bool DisplaysSession::pluggedInAgain() {
    plug();
    if (!DisplayFollower::shared().offer()) return rig_.fail("nothing was offered");
    return rig_.openStatusPanel();
}

bool DisplaysSession::restored() {
    const std::string row =
        "Restore \"" + DisplayFollower::shared().offer()->name + "\" for these displays";
    if (!rig_.clickPanelRow(row)) return false;
    rig_.desktop().executor().advance(restoreSettle);
    describe("Start Page");
    describe("Notes");
    if (window("Notes")->frame != notesAtTheDesk) return rig_.fail("Notes is not back");
    return true;
}

bool DisplaysSession::undone() {
    if (!LayoutUndo::shared().available()) return rig_.fail("nothing to undo");
    if (!rig_.openMissionControl()) return false;
    if (rig_.press(zKey, ModifierFlag::command)) return rig_.fail("Command-Z went on");
    rig_.desktop().executor().advance(0.3);
    return true;
}

bool DisplaysSession::backOnTheLaptop() {
    if (!rig_.closeMissionControl()) return false;
    describe("Start Page");
    describe("Notes");
    if (window("Start Page")->frame != Rect{0, 25, 1440, 805})
        return rig_.fail("Safari is not back on the laptop");
    return true;
}

bool DisplaysSession::automatic() {
    Shared::store()->set(std::string(PreferenceKey::layoutsFollowDisplays),
                         std::string(FollowDisplays::automatic));
    unplug();
    plug();
    rig_.desktop().executor().advance(restoreSettle);
    describe("Start Page");
    describe("Notes");
    if (window("Start Page")->frame != safariAtTheDesk) return rig_.fail("Safari is not back");
    return true;
}

int playDisplaysSession(SimCommandContext& context) {
    return DisplaysSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("displays",
                    "plays a laptop leaving and rejoining a desk: its layout offered, restored, "
                    "undone, then restored at once",
                    55, playDisplaysSession);

}  // namespace vistrel
