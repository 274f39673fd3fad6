#include "session_rig.h"

#include <cstdlib>
#include <iomanip>
#include <sstream>

#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_screen_renderer.h"
#include "sim_pictures.h"
#include "tracking/mission_control_detector.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

constexpr std::string_view pictureExtension = ".png";
constexpr std::string_view homeSuffix = "-home";
constexpr int timeDecimals = 3;
static_assert(SessionRig::userPause > Engine::refreshEvery * MissionControlDetector::openInterval);

}  // namespace

void EchoingLog::write(std::string_view subsystem, std::string_view category, LogLevel level,
                       std::string_view message) {
    desktop_.systemLog().write(subsystem, category, level, message);
    std::ostringstream line;
    line << std::fixed << std::setprecision(timeDecimals) << "  +"
         << desktop_.clock().now() - started_ << "s  " << (level == LogLevel::error ? "ERROR " : "")
         << message << "\n";
    out_ << line.str();
}

EchoingPlatform::EchoingPlatform(SimDesktop& desktop, SystemLog& log)
    : platform_{.accessibility = desktop.platform().accessibility,
                .windowServer = desktop.platform().windowServer,
                .workspace = desktop.platform().workspace,
                .screens = desktop.platform().screens,
                .displayWatch = desktop.platform().displayWatch,
                .defaults = desktop.platform().defaults,
                .eventTap = desktop.platform().eventTap,
                .executor = desktop.platform().executor,
                .clock = desktop.platform().clock,
                .systemLog = log,
                .loginItem = desktop.platform().loginItem,
                .windowHost = desktop.platform().windowHost,
                .text = desktop.platform().text,
                .notifications = desktop.platform().notifications,
                .updates = desktop.platform().updates,
                .application = desktop.platform().application,
                .systemInfo = desktop.platform().systemInfo,
                .infoDictionary = desktop.platform().infoDictionary,
                .files = desktop.platform().files,
                .alert = desktop.platform().alert,
                .reportDialog = desktop.platform().reportDialog,
                .savePanel = desktop.platform().savePanel,
                .pasteboard = desktop.platform().pasteboard,
                .archiver = desktop.platform().archiver,
                .uploader = desktop.platform().uploader,
                .fonts = desktop.platform().fonts,
                .statusBar = desktop.platform().statusBar,
                .panels = desktop.platform().panels,
                .eventMonitors = desktop.platform().eventMonitors,
                .menus = desktop.platform().menus,
                .appearance = desktop.platform().appearance,
                .launch = desktop.platform().launch,
                .processes = desktop.platform().processes,
                .scripts = desktop.platform().scripts,
                .fileWriter = desktop.platform().fileWriter} {
    installPlatform(&platform_);
}

ScopedHome::ScopedHome(const std::filesystem::path& home) {
    std::error_code ignored;
    std::filesystem::remove_all(home, ignored);
    if (const char* saved = std::getenv("HOME")) saved_ = saved;
    // The file log keeps nothing under a relative home.
    setenv("HOME", std::filesystem::absolute(home).c_str(), 1);
}

ScopedHome::~ScopedHome() {
    if (saved_) {
        setenv("HOME", saved_->c_str(), 1);
    } else {
        unsetenv("HOME");
    }
}

SessionRig::SessionRig(SimCommandContext& context, std::string_view name, Start start)
    : context_(context),
      name_(name),
      home_(context.outputDirectory / (name_ + std::string(homeSuffix))) {
    populateDefaultScene(desktop_);
    if (start == Start::nothing) return;
    ownEngine_ = Engine::make();
    ownEngine_->start();
    engine_ = ownEngine_.get();
    desktop_.executor().advance(MissionControlDetector::startDelay);
}

int SessionRig::play(std::string_view title, const std::vector<Step>& steps,
                     const std::function<std::optional<SimWindowId>()>& hovered) {
    context_.out << "== " << title << " ==\n";
    int number = 0;
    for (const Step& step : steps) {
        pause();
        context_.out << ++number << ". " << step.summary << "\n";
        if (!step.run() || !takePicture(number, step.picture, hovered())) return 1;
    }
    context_.out << "  the agent's file log is under " << home().string() << "\n\n";
    return 0;
}

SessionRig::Agent SessionRig::launchAgent(double settle) {
    Agent agent;
    agent.pid = desktop_.addApplication(
        SimApplication{.bundleIdentifier = *desktop_.bundle.identifier, .name = "Vistrel"});
    agent.delegate = std::make_unique<AppDelegate>();
    agent.delegate->applicationDidFinishLaunching();
    desktop_.executor().advance(settle);
    if (agent.delegate->engine() != nullptr) watch(*agent.delegate->engine());
    return agent;
}

std::filesystem::path SessionRig::home() const {
    return context_.outputDirectory / (name_ + std::string(homeSuffix));
}

bool SessionRig::deliver(const InputEvent& event) {
    if (event.type != EventType::keyDown && event.type != EventType::keyUp)
        pointer_ = event.location;
    const bool passed = desktop_.eventTap().deliver(event);
    desktop_.executor().runUntilIdle();
    return passed;
}

bool SessionRig::press(std::int64_t keyCode, std::uint64_t flags) {
    const bool passed = deliver(SimInput::keyDown(keyCode, flags));
    deliver(SimInput::keyUp(keyCode, flags));
    return passed;
}

bool SessionRig::click(Point point) {
    deliver(SimInput::mouseMoved(point));
    const bool passed = deliver(SimInput::mouseDown(point));
    deliver(SimInput::mouseUp(point));
    return passed;
}

void SessionRig::pause() {
    desktop_.executor().advance(userPause);
}

bool SessionRig::openMissionControl() {
    desktop_.dock().open();
    desktop_.executor().advance(MissionControlDetector::closedInterval);
    if (!engine_->active()) return fail("the engine did not notice Mission Control open");
    return true;
}

bool SessionRig::closeMissionControl() {
    // The engine lets Escape through to the Dock, which leaves Mission Control.
    if (!press(SimDock::escapeKeyCode, 0)) return fail("Escape was swallowed");
    desktop_.executor().advance(MissionControlDetector::openInterval);
    if (engine_->active()) return fail("the engine still thinks Mission Control is open");
    return true;
}

bool SessionRig::takePicture(int number, std::string_view picture,
                             std::optional<SimWindowId> hovered) {
    SimScreenScene scene;
    scene.missionControl = desktop_.dock().isOpen();
    if (scene.missionControl) scene.thumbnails = screenThumbnails(desktop_, hovered);
    scene.pointer = pointer_;
    scene.everyDisplay = everyDisplay_;
    const auto path =
        context_.outputDirectory / (name_ + "-" + std::to_string(number) + "-" +
                                    std::string(picture) + std::string(pictureExtension));
    if (!SimScreenRenderer(desktop_).writePng(scene, path)) return fail("could not write picture");
    context_.out << "  wrote " << path.string() << "\n";
    return true;
}

std::string SessionRig::titleOf(SimWindowId id) {
    const SimWindow* window = desktop_.window(id);
    return window != nullptr ? window->title : std::string("?");
}

bool SessionRig::fail(std::string_view why) {
    context_.out << "  session stopped: " << why << "\n";
    return false;
}

SimKeyPanel* SessionRig::statusPanel() {
    const auto& panels = desktop_.panels().panels();
    return panels.empty() ? nullptr : panels.front();
}

bool SessionRig::openStatusPanel() {
    if (statusPanel() && statusPanel()->isVisible()) return true;
    // A click right after the panel closed would leave it closed.
    desktop_.executor().advance(StatusMenuController::reopenGuard * 2);
    const auto& items = desktop_.statusBar().items();
    if (items.empty()) return fail("no status item to click");
    items.front()->click();
    desktop_.executor().runUntilIdle();
    if (!statusPanel() || !statusPanel()->isVisible()) return fail("the panel did not open");
    return true;
}

bool SessionRig::clickPanelRow(const std::string& label) {
    SimKeyPanel* panel = statusPanel();
    if (!panel || !panel->isVisible()) return fail("the panel is not open");
    for (const AccessibilityNode& node : panel->accessibilityNodes()) {
        if (node.label != label) continue;
        panel->click(node.frame.mid());
        desktop_.executor().runUntilIdle();
        return true;
    }
    return fail("the panel has no \"" + label + "\"");
}

}  // namespace vistrel
