#include <optional>
#include <string>
#include <string_view>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "platform/sim/sim_scene.h"
#include "session/layouts_controller.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"

namespace vistrel {

namespace {

constexpr std::int64_t leftArrowKey = 123;
constexpr std::int64_t digitOneKey = 18;
// The gap between arranged windows the session's user has chosen, in points.
constexpr double sessionGap = 8;
// Long enough for a layout's windows to be moved and raised after Mission Control closes.
constexpr double arrangeSettle = 2.0;
constexpr int halvesTemplate = 0;

using Item = ShelfLayout::Item;

// A user composing, snapping, saving and restoring layouts in Mission Control, played
// through the real engine and event stream.
class LayoutsSession {
  public:
    explicit LayoutsSession(SimCommandContext& context) : rig_(context, "layouts") {
        Shared::store()->set(std::string(PreferenceKey::layoutsGap), sessionGap);
    }
    int play();

  private:
    bool openMissionControl();
    bool unfoldShelf();
    bool chooseHalves();
    bool pickNotes() { return pickWindow("Notes"); }
    bool pickSafari() { return pickWindow("Start Page"); }
    bool snapTerminal();
    bool saveCurrent();
    bool restoreFirst();

    bool pickWindow(const std::string& title);
    bool hover(const std::string& title);
    bool clickCell(Item item);
    bool settled(std::string_view what);
    void describeWindows();
    LayoutsController& layouts();

    SessionRig rig_;
    std::optional<SimWindowId> hovered_;
};

int LayoutsSession::play() {
    const auto step = [this](bool (LayoutsSession::*run)()) {
        return [this, run] { return (this->*run)(); };
    };
    return rig_.play(
        "a Layouts session on the default scene",
        {
            {"open", "open Mission Control: the shelf waits folded",
             step(&LayoutsSession::openMissionControl)},
            {"shelf", "point at the pill: the shelf unfolds", step(&LayoutsSession::unfoldShelf)},
            {"compose", "click the Halves template", step(&LayoutsSession::chooseHalves)},
            {"picked", "click Notes into the first slot", step(&LayoutsSession::pickNotes)},
            {"halves", "click Safari into the second slot", step(&LayoutsSession::pickSafari)},
            {"snap", "in Mission Control, press Command-Left on Terminal",
             step(&LayoutsSession::snapTerminal)},
            {"saved", "click Save current on the shelf", step(&LayoutsSession::saveCurrent)},
            {"restored", "press Command-1", step(&LayoutsSession::restoreFirst)},
        },
        [this] { return hovered_; });
}

LayoutsController& LayoutsSession::layouts() {
    return dynamic_cast<LayoutsController&>(rig_.engine().layouts());
}

bool LayoutsSession::openMissionControl() {
    if (!rig_.openMissionControl()) return false;
    if (!layouts().isOpen() || !layouts().layout()) return rig_.fail("no shelf appeared");
    rig_.out() << "  the folded shelf sits at " << describeRect(layouts().layout()->pill) << "\n";
    return true;
}

bool LayoutsSession::unfoldShelf() {
    hovered_.reset();
    rig_.deliver(SimInput::mouseMoved(layouts().layout()->pill.mid()));
    if (!layouts().unfolded()) return rig_.fail("the shelf did not unfold");
    rig_.out() << "  the shelf spans " << describeRect(layouts().layout()->frame) << " with "
               << layouts().layout()->cells.size() << " cells\n";
    return true;
}

bool LayoutsSession::chooseHalves() {
    if (!clickCell(Item::layoutTemplate(halvesTemplate))) return false;
    if (!layouts().isComposing()) return rig_.fail("clicking Halves did not start composing");
    rig_.out() << "  caption: " << layouts().caption().view().message() << "\n";
    return true;
}

bool LayoutsSession::pickWindow(const std::string& title) {
    if (!hover(title)) return false;
    for (const SimThumbnail& thumbnail : rig_.desktop().dock().thumbnails()) {
        if (thumbnail.window != *hovered_) continue;
        if (rig_.click(thumbnail.frame.mid()))
            return rig_.fail("the click on \"" + title + "\" reached Mission Control");
    }
    if (layouts().isComposing()) {
        rig_.out() << "  caption: " << layouts().caption().view().message() << "\n";
        return true;
    }
    hovered_.reset();
    rig_.desktop().executor().advance(arrangeSettle);
    return settled("the Halves layout");
}

bool LayoutsSession::snapTerminal() {
    if (!rig_.openMissionControl() || !hover("vistrel — zsh — 80×24")) return false;
    if (rig_.press(leftArrowKey, ModifierFlag::command))
        return rig_.fail("Command-Left went on to the system");
    rig_.out() << "  HUD: " << layouts().toast().view().message() << "\n";
    return true;
}

bool LayoutsSession::saveCurrent() {
    hovered_.reset();
    if (!unfoldShelf() || !clickCell(Item::save())) return false;
    const auto stored = LayoutStore::load(*Shared::store());
    if (stored.size() != 2) return rig_.fail("the current windows were not saved");
    rig_.out() << "  HUD: " << layouts().toast().view().message() << "\n";
    return true;
}

bool LayoutsSession::restoreFirst() {
    if (rig_.press(digitOneKey, ModifierFlag::command))
        return rig_.fail("Command-1 went on to the system");
    rig_.desktop().executor().advance(arrangeSettle);
    return settled("the first saved layout");
}

// Hovers a window's thumbnail until the engine shows the strip over it.
bool LayoutsSession::hover(const std::string& title) {
    for (const SimThumbnail& thumbnail : rig_.desktop().dock().thumbnails()) {
        if (rig_.titleOf(thumbnail.window) != title) continue;
        rig_.deliver(SimInput::mouseMoved(thumbnail.frame.mid()));
        if (!rig_.engine().target()) return rig_.fail("no strip appeared over \"" + title + "\"");
        hovered_ = thumbnail.window;
        return true;
    }
    return rig_.fail("Mission Control shows no \"" + title + "\"");
}

bool LayoutsSession::clickCell(Item item) {
    for (const auto& cell : layouts().layout()->cells) {
        if (cell.item != item) continue;
        if (rig_.click(cell.rect.mid())) return rig_.fail("the shelf let a click through");
        return true;
    }
    return rig_.fail("the shelf has no such cell");
}

// Mission Control has closed and the windows sit where the layout put them.
bool LayoutsSession::settled(std::string_view what) {
    if (rig_.desktop().dock().isOpen()) return rig_.fail("Mission Control stayed open");
    rig_.desktop().executor().advance(SessionRig::userPause);
    rig_.out() << "  " << what << " is in place:\n";
    describeWindows();
    return true;
}

void LayoutsSession::describeWindows() {
    for (const SimWindow& window : rig_.desktop().windows()) {
        if (!rig_.desktop().isOnScreen(window)) continue;
        rig_.out() << "    \"" << window.title << "\" " << describeRect(window.frame) << "\n";
    }
}

int playLayoutsSession(SimCommandContext& context) {
    return LayoutsSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("layouts", "plays a Layouts session: compose, snap, save, restore", 50,
                    playLayoutsSession);

}  // namespace vistrel
