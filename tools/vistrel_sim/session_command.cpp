#include <optional>
#include <string>
#include <string_view>

#include "base/hotkey.h"
#include "platform/sim/sim_scene.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "sim_pictures.h"

namespace vistrel {

namespace {

// A user's session in Mission Control, played through the real engine and event stream.
class Session {
  public:
    explicit Session(SimCommandContext& context) : rig_(context, "session") {
        Shared::store()->set(std::string(PreferenceKey::showMinimizeButton), true);
    }
    int play();

  private:
    bool openMissionControl() { return rig_.openMissionControl(); }
    bool hover();
    bool clickClose();
    bool pressMinimize();
    bool closeMissionControl();
    bool hoveredWindowGone(bool (*gone)(const SimWindow&), std::string_view how);

    SessionRig rig_;
    std::optional<SimWindowId> hovered_;
};

int Session::play() {
    const auto step = [this](bool (Session::*run)()) {
        return [this, run] { return (this->*run)(); };
    };
    return rig_.play("a Mission Control session on the default scene",
                     {
                         {"open", "open Mission Control", step(&Session::openMissionControl)},
                         {"hover", "hover the largest thumbnail", step(&Session::hover)},
                         {"close", "click the strip's close button", step(&Session::clickClose)},
                         {"hover", "hover the largest thumbnail left", step(&Session::hover)},
                         {"minimize", "press Command-M", step(&Session::pressMinimize)},
                         {"closed", "press Escape to leave Mission Control",
                          step(&Session::closeMissionControl)},
                     },
                     [this] { return hovered_; });
}

bool Session::hover() {
    const auto thumbnail = largestThumbnail(rig_.desktop());
    if (!thumbnail) return rig_.fail("nothing to hover: Mission Control shows no thumbnail");
    rig_.deliver(SimInput::mouseMoved(thumbnail->frame.mid()));
    const std::string title = rig_.titleOf(thumbnail->window);
    const auto& layout = rig_.engine().layout();
    if (!layout || layout->items.empty())
        return rig_.fail("no strip appeared over \"" + title + "\"");
    if (layout->items.front().rect.intersection(thumbnail->frame).isEmpty())
        return rig_.fail("the strip is not over \"" + title + "\"");
    hovered_ = thumbnail->window;
    rig_.out() << "  pointer on \"" << title << "\" " << describeRect(thumbnail->frame)
               << ", strip of " << layout->items.size() << " buttons\n";
    return true;
}

bool Session::clickClose() {
    std::optional<Point> button;
    if (const auto& layout = rig_.engine().layout()) {
        for (const auto& item : layout->items) {
            if (item.kind == OverlayButton::close) button = item.rect.mid();
        }
    }
    if (!button) return rig_.fail("the strip shows no close button");
    if (rig_.click(*button))
        return rig_.fail("the click on the close button reached Mission Control");
    return hoveredWindowGone([](const SimWindow& window) { return window.closed; }, "closed");
}

bool Session::pressMinimize() {
    const Hotkey minimize = Hotkey::minimize;
    if (rig_.press(keyCode(minimize), modifiers(minimize)))
        return rig_.fail("Command-M went on to the system instead of the engine");
    return hoveredWindowGone([](const SimWindow& window) { return window.minimized; }, "minimized");
}

bool Session::closeMissionControl() {
    hovered_.reset();
    return rig_.closeMissionControl();
}

// Checks that the hovered window left Mission Control the way the action meant.
bool Session::hoveredWindowGone(bool (*gone)(const SimWindow&), std::string_view how) {
    if (!hovered_) return rig_.fail("no window was hovered");
    const SimWindowId window = *hovered_;
    hovered_.reset();
    const std::string title = rig_.titleOf(window);
    if (const SimWindow* left = rig_.desktop().window(window); left != nullptr && !gone(*left))
        return rig_.fail("\"" + title + "\" was not " + std::string(how));
    for (const SimThumbnail& thumbnail : rig_.desktop().dock().thumbnails()) {
        if (thumbnail.window == window)
            return rig_.fail("Mission Control still shows \"" + title + "\"");
    }
    rig_.out() << "  \"" << title << "\" " << how << ", its thumbnail gone\n";
    return true;
}

int playSession(SimCommandContext& context) {
    return Session(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("session", "plays a Mission Control session: hover, close, minimize", 40,
                    playSession);

}  // namespace vistrel
