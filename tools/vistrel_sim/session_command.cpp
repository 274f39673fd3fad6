#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_screen_renderer.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "sim_command.h"
#include "sim_pictures.h"
#include "tracking/engine.h"
#include "tracking/hotkey.h"
#include "tracking/mission_control_detector.h"

namespace vistrel {

namespace {

constexpr std::string_view picturePrefix = "session-";
constexpr std::string_view pictureExtension = ".png";
// The agent's file log goes under this folder of the output, not the user's own home.
constexpr std::string_view homeFolder = "session-home";
constexpr int timeDecimals = 3;
// The user's pause before each step. It is long enough for the engine's detector ticks to
// read the thumbnails again after a window left Mission Control, so the next hover is
// tested against the new rows.
constexpr double userPause = 0.5;
static_assert(userPause > Engine::refreshEvery * MissionControlDetector::openInterval);

// The unified log of the session: every line goes to the desktop's log and is printed the
// moment the agent writes it, stamped with the virtual time since the session began.
class EchoingLog : public SystemLog {
  public:
    EchoingLog(SimDesktop& desktop, std::ostream& out)
        : desktop_(desktop), out_(out), started_(desktop.clock().now()) {}

    void write(std::string_view subsystem, std::string_view category, LogLevel level,
               std::string_view message) override {
        desktop_.systemLog().write(subsystem, category, level, message);
        std::ostringstream line;
        line << std::fixed << std::setprecision(timeDecimals) << "  +"
             << desktop_.clock().now() - started_ << "s  "
             << (level == LogLevel::error ? "ERROR " : "") << message << "\n";
        out_ << line.str();
    }

  private:
    SimDesktop& desktop_;
    std::ostream& out_;
    double started_;
};

// The desktop's platform with the echoing log in place of its own, installed for the
// lifetime of this object.
class EchoingPlatform {
  public:
    EchoingPlatform(SimDesktop& desktop, SystemLog& log)
        : platform_{.accessibility = desktop.platform().accessibility,
                    .windowServer = desktop.platform().windowServer,
                    .workspace = desktop.platform().workspace,
                    .screens = desktop.platform().screens,
                    .defaults = desktop.platform().defaults,
                    .eventTap = desktop.platform().eventTap,
                    .executor = desktop.platform().executor,
                    .clock = desktop.platform().clock,
                    .systemLog = log,
                    .loginItem = desktop.platform().loginItem,
                    .windowHost = desktop.platform().windowHost,
                    .text = desktop.platform().text} {
        installPlatform(&platform_);
    }
    ~EchoingPlatform() { installPlatform(nullptr); }
    EchoingPlatform(const EchoingPlatform&) = delete;
    EchoingPlatform& operator=(const EchoingPlatform&) = delete;

  private:
    Platform platform_;
};

// Points HOME at an empty folder of the session's own while it plays, so the agent's file
// log lands next to the pictures, holding this session only, instead of in the user's
// real log folder.
class ScopedHome {
  public:
    explicit ScopedHome(const std::filesystem::path& home) {
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
        if (const char* saved = std::getenv("HOME")) saved_ = saved;
        // The file log keeps nothing under a relative home.
        setenv("HOME", std::filesystem::absolute(home).c_str(), 1);
    }
    ~ScopedHome() {
        if (saved_) {
            setenv("HOME", saved_->c_str(), 1);
        } else {
            unsetenv("HOME");
        }
    }
    ScopedHome(const ScopedHome&) = delete;
    ScopedHome& operator=(const ScopedHome&) = delete;

  private:
    std::optional<std::string> saved_;
};

// A user's session in Mission Control, played through the real engine and event stream.
class Session {
  public:
    explicit Session(SimCommandContext& context);
    int play();

  private:
    struct Step {
        std::string_view picture;
        std::string_view summary;
        bool (Session::*run)();
    };

    bool openMissionControl();
    bool hover();
    bool clickClose();
    bool pressMinimize();
    bool closeMissionControl();
    bool takePicture(int number, std::string_view name);

    bool deliver(const InputEvent& event);
    bool press(std::int64_t keyCode, std::uint64_t flags);
    bool hoveredWindowGone(bool (*gone)(const SimWindow&), std::string_view how);
    std::string titleOf(SimWindowId id);
    bool fail(std::string_view why);

    SimCommandContext& context_;
    ScopedHome home_;
    SimDesktop desktop_;
    EchoingLog log_{desktop_, context_.out};
    EchoingPlatform installed_{desktop_, log_};
    std::shared_ptr<Engine> engine_;
    std::optional<Point> pointer_;
    std::optional<SimWindowId> hovered_;
};

Session::Session(SimCommandContext& context)
    : context_(context), home_(context.outputDirectory / homeFolder) {
    populateDefaultScene(desktop_);
    Shared::store()->set(std::string(PreferenceKey::showMinimizeButton), true);
    engine_ = Engine::make();
    engine_->start();
    desktop_.executor().advance(MissionControlDetector::startDelay);
}

int Session::play() {
    static constexpr Step steps[] = {
        {"open", "open Mission Control", &Session::openMissionControl},
        {"hover", "hover the largest thumbnail", &Session::hover},
        {"close", "click the strip's close button", &Session::clickClose},
        {"hover", "hover the largest thumbnail left", &Session::hover},
        {"minimize", "press Command-M", &Session::pressMinimize},
        {"closed", "press Escape to leave Mission Control", &Session::closeMissionControl},
    };
    context_.out << "== a Mission Control session on the default scene ==\n";
    int number = 0;
    for (const Step& step : steps) {
        desktop_.executor().advance(userPause);
        context_.out << ++number << ". " << step.summary << "\n";
        if (!(this->*step.run)() || !takePicture(number, step.picture)) return 1;
    }
    context_.out << "  the agent's file log is under "
                 << (context_.outputDirectory / homeFolder).string() << "\n\n";
    return 0;
}

bool Session::openMissionControl() {
    desktop_.dock().open();
    desktop_.executor().advance(MissionControlDetector::closedInterval);
    if (!engine_->active()) return fail("the engine did not notice Mission Control open");
    return true;
}

bool Session::hover() {
    const auto thumbnail = largestThumbnail(desktop_);
    if (!thumbnail) return fail("nothing to hover: Mission Control shows no thumbnail");
    deliver(SimInput::mouseMoved(thumbnail->frame.mid()));
    const std::string title = titleOf(thumbnail->window);
    const auto& layout = engine_->layout();
    if (!layout || layout->items.empty()) return fail("no strip appeared over \"" + title + "\"");
    if (layout->items.front().rect.intersection(thumbnail->frame).isEmpty())
        return fail("the strip is not over \"" + title + "\"");
    hovered_ = thumbnail->window;
    context_.out << "  pointer on \"" << title << "\" " << describeRect(thumbnail->frame)
                 << ", strip of " << layout->items.size() << " buttons\n";
    return true;
}

bool Session::clickClose() {
    std::optional<Point> button;
    if (const auto& layout = engine_->layout()) {
        for (const auto& item : layout->items) {
            if (item.kind == OverlayButton::close) button = item.rect.mid();
        }
    }
    if (!button) return fail("the strip shows no close button");
    deliver(SimInput::mouseMoved(*button));
    if (deliver(SimInput::mouseDown(*button)) || deliver(SimInput::mouseUp(*button)))
        return fail("the click on the close button reached Mission Control");
    return hoveredWindowGone([](const SimWindow& window) { return window.closed; }, "closed");
}

bool Session::pressMinimize() {
    const Hotkey minimize = Hotkey::minimize;
    if (press(keyCode(minimize), modifiers(minimize)))
        return fail("Command-M went on to the system instead of the engine");
    return hoveredWindowGone([](const SimWindow& window) { return window.minimized; }, "minimized");
}

bool Session::closeMissionControl() {
    // The engine lets Escape through to the Dock, which leaves Mission Control.
    if (!press(SimDock::escapeKeyCode, 0)) return fail("Escape was swallowed");
    desktop_.executor().advance(MissionControlDetector::openInterval);
    hovered_.reset();
    if (engine_->active()) return fail("the engine still thinks Mission Control is open");
    return true;
}

bool Session::takePicture(int number, std::string_view name) {
    SimScreenScene scene;
    scene.missionControl = desktop_.dock().isOpen();
    if (scene.missionControl) scene.thumbnails = screenThumbnails(desktop_, hovered_);
    scene.pointer = pointer_;
    const auto path =
        context_.outputDirectory / (std::string(picturePrefix) + std::to_string(number) + "-" +
                                    std::string(name) + std::string(pictureExtension));
    if (!SimScreenRenderer(desktop_).writePng(scene, path)) return fail("could not write picture");
    context_.out << "  wrote " << path.string() << "\n";
    return true;
}

// Delivers an event through the tap and runs the work it starts; answers whether it
// went on to the system.
bool Session::deliver(const InputEvent& event) {
    if (event.type != EventType::keyDown && event.type != EventType::keyUp)
        pointer_ = event.location;
    const bool passed = desktop_.eventTap().deliver(event);
    desktop_.executor().runUntilIdle();
    return passed;
}

// A key pressed and released; answers whether the press went on to the system.
bool Session::press(std::int64_t keyCode, std::uint64_t flags) {
    const bool passed = deliver(SimInput::keyDown(keyCode, flags));
    deliver(SimInput::keyUp(keyCode, flags));
    return passed;
}

// Checks that the hovered window left Mission Control the way the action meant.
bool Session::hoveredWindowGone(bool (*gone)(const SimWindow&), std::string_view how) {
    if (!hovered_) return fail("no window was hovered");
    const SimWindowId window = *hovered_;
    hovered_.reset();
    const std::string title = titleOf(window);
    if (const SimWindow* left = desktop_.window(window); left != nullptr && !gone(*left))
        return fail("\"" + title + "\" was not " + std::string(how));
    for (const SimThumbnail& thumbnail : desktop_.dock().thumbnails()) {
        if (thumbnail.window == window)
            return fail("Mission Control still shows \"" + title + "\"");
    }
    context_.out << "  \"" << title << "\" " << how << ", its thumbnail gone\n";
    return true;
}

std::string Session::titleOf(SimWindowId id) {
    const SimWindow* window = desktop_.window(id);
    return window != nullptr ? window->title : std::string("?");
}

bool Session::fail(std::string_view why) {
    context_.out << "  session stopped: " << why << "\n";
    return false;
}

int playSession(SimCommandContext& context) {
    return Session(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("session", "plays a Mission Control session: hover, close, minimize", 40,
                    playSession);

}  // namespace vistrel
