#include <memory>
#include <string>
#include <string_view>

#include "app/capture_report.h"
#include "base/hotkey.h"
#include "platform/sim/sim_event_tap_port.h"
#include "session_rig.h"
#include "sim_command.h"
#include "tracking/health.h"
#include "tracking/mission_control_detector.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

// Six disablings in a minute make the tap a readiness problem.
constexpr int tapDisablings = 6;
// How long after a kept click its lost release stops being kept, and a little more.
constexpr double afterTheLapse = 1.5;

// The ways Vistrel can fail on a real Mac, played on the default scene, each ending with the
// status panel as the user sees it: a grant macOS lists but refuses (as after an update), a
// macOS whose Mission Control tree Vistrel cannot read (with a capture sent for a report), an
// event tap the system keeps pausing, and a click whose release was lost.
class HealthSession {
  public:
    explicit HealthSession(SimCommandContext& context) : rig_(context, "health") {
        menu_ = StatusMenuController::make();
        menu_->sendCapture = [] { CaptureReport::start(); };
    }
    int play();

  private:
    bool ready();
    bool staleGrant();
    bool grantedAgain();
    bool cannotRead();
    bool captureWaits();
    bool captured();
    bool tapPaused();
    bool lostRelease();

    // The grant switched off and on again in System Settings, as a user tries first.
    void toggleGrant();
    bool openPanel();
    bool closePanel();
    bool openAndClose(int times);
    Point centreOf(const std::string& title);
    std::optional<Point> thumbnailCentreOf(const std::string& title);

    SessionRig rig_;
    std::shared_ptr<StatusMenuController> menu_;
};

int HealthSession::play() {
    const auto step = [this](bool (HealthSession::*run)()) {
        return [this, run] { return (this->*run)(); };
    };
    return rig_.play(
        "when Vistrel cannot work on this Mac",
        {
            {"ready", "open the panel: Vistrel is ready", step(&HealthSession::ready)},
            {"stale-grant", "after an update macOS lists Vistrel but refuses every call",
             step(&HealthSession::staleGrant)},
            {"granted-again", "remove Vistrel from the list and add it again",
             step(&HealthSession::grantedAgain)},
            {"cannot-read", "a macOS whose Mission Control tree is empty, three openings",
             step(&HealthSession::cannotRead)},
            {"capture-waits", "click Send a Capture…, titles left out",
             step(&HealthSession::captureWaits)},
            {"captured", "open Mission Control: the capture goes into a problem report",
             step(&HealthSession::captured)},
            {"tap-paused", "macOS pauses the event tap six times in a minute",
             step(&HealthSession::tapPaused)},
            {"lost-release", "a kept click loses its release; the next drag is not stuck",
             step(&HealthSession::lostRelease)},
        },
        [] { return std::optional<SimWindowId>(); });
}

bool HealthSession::openPanel() {
    if (!rig_.openStatusPanel()) return false;
    for (const AccessibilityNode& node : rig_.statusPanel()->accessibilityNodes()) {
        if (node.role == "AXStaticText" && !node.help.empty()) {
            rig_.out() << "  readiness: \"" << node.label << "\"\n";
            break;
        }
    }
    return true;
}

bool HealthSession::closePanel() {
    if (rig_.statusPanel() && rig_.statusPanel()->isVisible()) menu_->clicked();
    return true;
}

void HealthSession::toggleGrant() {
    rig_.desktop().trusted = false;
    rig_.desktop().executor().advance(MissionControlDetector::untrustedInterval);
    rig_.desktop().trusted = true;
    rig_.desktop().executor().advance(MissionControlDetector::untrustedInterval);
    rig_.desktop().executor().runUntilIdle();
}

bool HealthSession::openAndClose(int times) {
    for (int i = 0; i < times; ++i) {
        if (!rig_.openMissionControl() || !rig_.closeMissionControl()) return false;
    }
    return true;
}

Point HealthSession::centreOf(const std::string& title) {
    for (const SimWindow& window : rig_.desktop().windows()) {
        if (window.title == title) return window.frame.mid();
    }
    return {};
}

std::optional<Point> HealthSession::thumbnailCentreOf(const std::string& title) {
    for (const SimThumbnail& thumbnail : rig_.desktop().dock().thumbnails()) {
        if (rig_.titleOf(thumbnail.window) == title) return thumbnail.frame.mid();
    }
    return std::nullopt;
}

bool HealthSession::ready() {
    return openPanel();
}

bool HealthSession::staleGrant() {
    closePanel();
    rig_.desktop().staleGrant = AXError::apiDisabled;
    toggleGrant();
    if (!Health::shared().staleGrant()) return rig_.fail("the stale grant went unnoticed");
    return openPanel();
}

bool HealthSession::grantedAgain() {
    closePanel();
    rig_.desktop().staleGrant.reset();
    toggleGrant();
    if (Health::shared().staleGrant()) return rig_.fail("the grant still reads as stale");
    return openPanel();
}

bool HealthSession::cannotRead() {
    closePanel();
    rig_.desktop().dock().treeEmpty = true;
    if (!openAndClose(SelfCheck::failuresToTell - 1) || !rig_.openMissionControl()) return false;
    rig_.deliver(SimInput::mouseMoved(centreOf("Notes")));
    const bool passed = rig_.press(KeyCode::w, modifiers(Hotkey::close));
    rig_.out() << "  Command-W over Notes " << (passed ? "went on to the system" : "was kept")
               << "\n";
    if (!passed) return rig_.fail("a key was kept with no window to act on");
    if (!rig_.closeMissionControl()) return false;
    if (!Health::shared().selfCheck().cannotRead()) return rig_.fail("the self-check said nothing");
    return openPanel();
}

bool HealthSession::captureWaits() {
    rig_.desktop().alert().answers.push_back(0);
    if (!rig_.clickPanelRow("Send a Capture…")) return false;
    if (!Health::shared().captureWaiting()) return rig_.fail("no capture waits");
    return openPanel();
}

bool HealthSession::captured() {
    closePanel();
    rig_.desktop().reportDialog().answers.push_back({2, "", ""});
    if (!rig_.openMissionControl()) return false;
    rig_.desktop().executor().advance(1);
    rig_.desktop().executor().runUntilIdle();
    const auto& shown = rig_.desktop().reportDialog().shown;
    if (shown.empty()) return rig_.fail("no problem report opened");
    rig_.out() << "  the problem report says: " << shown.back().alert.text << "\n";
    rig_.desktop().dock().treeEmpty = false;
    rig_.closeMissionControl();
    return openAndClose(1);
}

bool HealthSession::tapPaused() {
    if (!rig_.openMissionControl()) return false;
    for (int i = 0; i < tapDisablings; ++i) {
        rig_.deliver(SimInput::tapDisabled(EventType::tapDisabledByTimeout));
        rig_.desktop().executor().advance(1);
    }
    if (!rig_.closeMissionControl()) return false;
    if (!Health::shared().tapUnsteady()) return rig_.fail("the paused tap went unnoticed");
    return openPanel();
}

bool HealthSession::lostRelease() {
    closePanel();
    if (!openAndClose(1) || !rig_.openMissionControl()) return false;
    const auto notes = thumbnailCentreOf("Notes");
    const auto start = thumbnailCentreOf("Start Page");
    if (!notes || !start) return rig_.fail("Mission Control shows no Notes or Start Page");
    rig_.deliver(SimInput::mouseMoved(*notes));
    rig_.pause();
    const auto& strip = rig_.engine().layout();
    if (!strip) return rig_.fail("no strip over Notes");
    rig_.out() << "  a click on the strip's close button; its release never arrives\n";
    const Point button = strip->items.front().rect.mid();
    rig_.deliver(SimInput::mouseMoved(button));
    if (rig_.deliver(SimInput::mouseDown(button))) return rig_.fail("the strip's click went on");
    rig_.desktop().executor().advance(afterTheLapse);
    // A press the tap missed while macOS paused it: only its release comes through.
    const bool released = rig_.deliver(SimInput::mouseUp(*start));
    rig_.out() << "  a release " << afterTheLapse << " s later "
               << (released ? "went on to the system" : "was kept") << "\n";
    if (!released) return rig_.fail("a drag would stick");
    return true;
}

int playHealthSession(SimCommandContext& context) {
    return HealthSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("health",
                    "plays the failures: a stale grant, an unreadable Mission Control, a paused "
                    "tap, a lost release",
                    75, playHealthSession);

}  // namespace vistrel
