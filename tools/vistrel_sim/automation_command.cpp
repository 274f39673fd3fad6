#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/app_delegate.h"
#include "app/layout_command_line.h"
#include "layouts/layout_requests.h"
#include "layouts/layout_url.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

// Long enough for the agent's delayed start-up work, and for moved windows to be raised.
constexpr double settle = 1.0;
// How the terminal's wait for the agent is played out in virtual time.
constexpr double waitStep = 0.5;
// How far a restored window may stand from where it was saved: the unit rectangle's round trip.
constexpr double restoreTolerance = 1.0;
// Where the user drags two windows before saving them as a second layout.
constexpr Rect notesOnTheLeft{0, 25, 720, 805};
constexpr Rect safariOnTheRight{720, 25, 720, 805};

// Scripts driving Layouts: `Vistrel --save-layout`, `--list-layouts` and `--apply-layout` in a
// terminal and "vistrel://layout/..." URLs opened by other applications, against a running
// agent; then the forms it refuses, and the command line with no agent and with one that
// never answers. Every command is printed as typed, with its output and exit status.
class AutomationSession {
  public:
    explicit AutomationSession(SimCommandContext& context)
        : rig_(context, "automation", SessionRig::Start::nothing) {
        Shared::store()->set(std::string(PreferenceKey::onboardingCompleted), true);
    }

    int play() {
        const auto step = [this](bool (AutomationSession::*run)()) {
            return [this, run] { return (this->*run)(); };
        };
        return rig_.play(
            "Layouts from scripts: the command line and vistrel:// URLs",
            {
                {"save-by-command", "Vistrel --save-layout Morning",
                 step(&AutomationSession::saveByCommand)},
                {"save-by-url", "drag Notes and Safari side by side, open a save URL",
                 step(&AutomationSession::saveByURL)},
                {"listed", "Vistrel --list-layouts; the status panel lists the same",
                 step(&AutomationSession::listed)},
                {"apply-by-url", "open vistrel://layout/apply?name=Morning",
                 step(&AutomationSession::applyByURL)},
                {"apply-by-command", "Vistrel --apply-layout \"Writing Desk\"",
                 step(&AutomationSession::applyByCommand)},
                {"undo-by-url", "open vistrel://layout/undo", step(&AutomationSession::undoByURL)},
                {"refused", "misspelt names, unknown paths, broken and over-long URLs",
                 step(&AutomationSession::refused)},
                {"not-running", "Vistrel has quit: the listing reads the saved layouts itself",
                 step(&AutomationSession::notRunning)},
                {"not-answering", "a Vistrel that hangs: the command line gives up",
                 step(&AutomationSession::notAnswering)},
            },
            [] { return std::optional<SimWindowId>(); });
    }

  private:
    bool saveByCommand() {
        launch();
        morningNotes_ = frameOf("Notes");
        return command({"--save-layout", "Morning"}, 0);
    }

    bool saveByURL() {
        frame("Notes") = notesOnTheLeft;
        frame("Start Page") = safariOnTheRight;
        rig_.desktop().bringToFront(idOf("Start Page"));
        rig_.desktop().bringToFront(idOf("Notes"));
        open("vistrel://layout/save?name=Writing%20Desk");
        return LayoutRequests::names().size() == 2 || rig_.fail("the URL saved no layout");
    }

    bool listed() {
        if (!command({"--list-layouts"}, 0)) return false;
        if (lastLines_ != std::vector<std::string>{"Morning", "Writing Desk"})
            return rig_.fail("the listing is not Morning, Writing Desk");
        const auto& items = rig_.desktop().statusBar().items();
        if (items.empty()) return rig_.fail("no status item");
        items.front()->click();
        rig_.desktop().executor().runUntilIdle();
        return rig_.statusPanel() != nullptr || rig_.fail("the panel did not open");
    }

    bool applyByURL() {
        agent_->statusMenu()->clicked();
        open("vistrel://layout/apply?name=Morning");
        return near(frameOf("Notes"), morningNotes_) ||
               rig_.fail("Notes is not where Morning has it");
    }

    bool applyByCommand() {
        if (!command({"--apply-layout", "Writing Desk"}, 0)) return false;
        return near(frameOf("Notes"), notesOnTheLeft) || rig_.fail("Notes is not on the left");
    }

    bool undoByURL() {
        open("vistrel://layout/undo");
        return near(frameOf("Notes"), morningNotes_) ||
               rig_.fail("the undo did not put Notes back");
    }

    bool refused() {
        const Rect before = frameOf("Notes");
        for (const std::string& url : {std::string("vistrel://layout/apply?name=writing%20desk"),
                                       std::string("vistrel://layout/remove?name=Morning"),
                                       std::string("vistrel://layout/apply?name=Morning%2"),
                                       std::string("vistrel://layout/apply?name=Morning&then=quit"),
                                       std::string("vistrel://layout/apply?name=") +
                                           std::string(LayoutURL::maxLength, 'M')}) {
            const auto lines = rig_.desktop().systemLog().lines().size();
            open(url);
            if (rig_.desktop().systemLog().lines().size() != lines + 1)
                return rig_.fail("a refused URL did not write exactly one line");
        }
        if (!command({"--apply-layout", "morning"}, 1) || !command({"--save-layout", ""}, 1) ||
            !command({"--apply-layout"}, 1))
            return false;
        return frameOf("Notes") == before || rig_.fail("a refused request moved a window");
    }

    bool notRunning() {
        quit();
        if (!command({"--list-layouts"}, 0) || !command({"--apply-layout", "Morning"}, 1))
            return false;
        return lastReason_ == LayoutCommandLine::notRunning || rig_.fail("not said not running");
    }

    bool notAnswering() {
        SimDesktop& desktop = rig_.desktop();
        desktop.addApplication(
            SimApplication{.bundleIdentifier = *desktop.bundle.identifier, .name = "Vistrel"});
        rig_.out() << "  Vistrel is listed as running but does not answer\n";
        if (!command({"--apply-layout", "Morning"}, 1)) return false;
        return lastReason_ == LayoutCommandLine::notAnswering || rig_.fail("not said no answer");
    }

    // Runs the command line as a terminal would and prints it; false when it exits otherwise.
    bool command(const std::vector<std::string>& arguments, int expected) {
        std::vector<std::string> line{"Vistrel"};
        line.insert(line.end(), arguments.begin(), arguments.end());
        rig_.out() << "  $ Vistrel";
        for (const std::string& argument : arguments)
            rig_.out() << " '" << argument << "'";
        rig_.out() << "\n";
        const auto invocation = LayoutCommandLine::requested(line);
        if (!invocation) return rig_.fail("not a layout command");
        std::optional<LayoutCommandLine::Result> result;
        LayoutCommandLine::start(*invocation, [&result](auto r) { result = std::move(r); });
        SimDesktop& desktop = rig_.desktop();
        desktop.executor().runUntilIdle();
        const double longest = LayoutCommandLine::acceptTimeout + LayoutCommandLine::doneTimeout;
        for (double waited = 0; !result && waited < longest; waited += waitStep)
            desktop.executor().advance(waitStep);
        if (!result) return rig_.fail("the command line never finished");
        for (const std::string& output : result->lines)
            rig_.out() << "    " << output << "\n";
        if (!result->reason.empty())
            rig_.out() << "    (to standard error) " << result->reason << "\n";
        rig_.out() << "    exit " << result->status << "\n";
        lastLines_ = result->lines;
        lastReason_ = result->reason;
        desktop.executor().advance(settle);
        return result->status == expected || rig_.fail("unexpected exit status");
    }

    // Hands the URL to the agent as Launch Services does when something opens it.
    void open(const std::string& url) {
        const std::string shown = url.size() > shownURLLength
                                      ? url.substr(0, shownURLLength) + "… (" +
                                            std::to_string(url.size()) + " characters)"
                                      : url;
        rig_.out() << "  $ open '" << shown << "'\n";
        agent_->openURLs({url});
        rig_.desktop().executor().runUntilIdle();
        rig_.desktop().executor().advance(settle);
    }

    void launch() {
        SessionRig::Agent agent = rig_.launchAgent(settle);
        agent_ = std::move(agent.delegate);
        agentPid_ = agent.pid;
    }

    void quit() {
        rig_.out() << "  quit Vistrel\n";
        agent_.reset();
        rig_.desktop().removeApplication(agentPid_);
    }

    SimWindowId idOf(const std::string& title) {
        for (const SimWindow& window : rig_.desktop().windows()) {
            if (window.title == title && !window.closed) return window.id;
        }
        return 0;
    }
    Rect& frame(const std::string& title) { return rig_.desktop().window(idOf(title))->frame; }
    Rect frameOf(const std::string& title) { return frame(title); }
    static bool near(Rect a, Rect b) {
        return std::abs(a.x - b.x) <= restoreTolerance && std::abs(a.y - b.y) <= restoreTolerance &&
               std::abs(a.width - b.width) <= restoreTolerance &&
               std::abs(a.height - b.height) <= restoreTolerance;
    }

    static constexpr std::size_t shownURLLength = 60;

    SessionRig rig_;
    std::unique_ptr<AppDelegate> agent_;
    Pid agentPid_ = 0;
    Rect morningNotes_;
    std::vector<std::string> lastLines_;
    std::string lastReason_;
};

int playAutomation(SimCommandContext& context) {
    return AutomationSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("automation",
                    "layouts from scripts: the command line and vistrel:// URLs, good and bad", 75,
                    playAutomation);

}  // namespace vistrel
