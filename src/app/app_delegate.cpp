#include "app/app_delegate.h"

#include <utility>

#include "app/capture_report.h"
#include "app/layout_commands.h"
#include "app/move_to_applications.h"
#include "base/log.h"
#include "diagnostics/report_problem.h"
#include "layouts/display_follower.h"
#include "platform/platform.h"
#include "session/engine.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/settings_launcher.h"
#include "settings/shared.h"
#include "settings/updates.h"
#include "ui/kit/dfkit_fonts.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {

namespace {

constexpr std::string_view missingVersion = "?";

std::string orMissing(const std::string& value) {
    return value.empty() ? std::string(missingVersion) : value;
}

// The status menu's view of the updater, when this build has one.
std::optional<StatusMenuController::Updater> menuUpdater() {
    if (Updates::updater() == nullptr) return std::nullopt;
    return StatusMenuController::Updater{[] { Updates::checkForUpdates(); },
                                         [] { return Updates::installsAutomatically(); },
                                         [](bool on) { Updates::setInstallsAutomatically(on); }};
}

}  // namespace

AppDelegate::AppDelegate() : commands_([this] { showStatusItem(); }, LayoutCommands::perform) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    Platform& p = platform();
    if (p.launch.variable(std::string(testHostVariable))) return;
    if (isSecondInstance()) {
        p.application.terminate();
        return;
    }
    if (MoveToApplications::offerIfNeeded()) return;
    DFKitFonts::registerFonts();
    makeStatusMenu();
    commands_.listen();
    firstRunOrPrompt();
    Settings::shared().publishStatus();
    p.application.keepTimersOnTime(timersReason);
    engine_ = Engine::make();
    engine_->start();
    DisplayFollower::shared().start();
    Log::info(startedLine());
    Updates::start();
    started_ = true;
    openURLs(std::exchange(waitingURLs_, {}));
}

void AppDelegate::openURLs(const std::vector<std::string>& urls) {
    if (!started_) {
        waitingURLs_.insert(waitingURLs_.end(), urls.begin(), urls.end());
        return;
    }
    for (const std::string& url : urls)
        LayoutCommands::openURL(url);
}

bool AppDelegate::applicationShouldHandleReopen() {
    auto store = Shared::store();
    if (Settings::shared().menuBarIconHidden()) {
        store->set(std::string(PreferenceKey::menuBarIconHidden), false);
        showStatusItem();
    }
    SettingsLauncher::open(!Settings::shared().onboardingCompleted(), false);
    return true;
}

std::string AppDelegate::startedLine() {
    Platform& p = platform();
    const BundleInfo bundle = p.workspace.mainBundle();
    return "Vistrel " + orMissing(bundle.version) + " (" + orMissing(bundle.build) +
           ") started on macOS " + p.systemInfo.operatingSystemVersionString() +
           ", accessibility " + (p.accessibility.isProcessTrusted() ? "true" : "false");
}

// Two or more running copies with this bundle's identifier: this one is the newcomer.
bool AppDelegate::isSecondInstance() const {
    Platform& p = platform();
    const auto identifier = p.workspace.mainBundle().identifier;
    if (!identifier) return false;
    int running = 0;
    for (const RunningApplication& app : p.workspace.runningApplications()) {
        if (app.bundleIdentifier == identifier) ++running;
    }
    return running >= 2;
}

void AppDelegate::makeStatusMenu() {
    statusMenu_ = StatusMenuController::make();
    statusMenu_->openSettings = [] { SettingsLauncher::open(false, false); };
    statusMenu_->openWelcome = [] { SettingsLauncher::open(true, false); };
    statusMenu_->openAbout = [] { SettingsLauncher::open(false, true); };
    statusMenu_->updater = menuUpdater();
    statusMenu_->reportProblem = [] { ReportProblem::show(); };
    statusMenu_->sendCapture = [] { CaptureReport::start(); };
}

// The welcome guide on a first run (it asks for Accessibility itself); afterwards the
// system's own prompt while the grant is missing.
void AppDelegate::firstRunOrPrompt() const {
    Platform& p = platform();
    if (!Settings::shared().onboardingCompleted()) {
        SettingsLauncher::open(true, false);
    } else if (!p.accessibility.isProcessTrusted()) {
        p.accessibility.promptForTrust();
    }
}

// The status item follows "menuBarIconHidden"; before the menu exists there is nothing to show.
void AppDelegate::showStatusItem() const {
    if (statusMenu_) statusMenu_->applyVisibility();
}

}  // namespace vistrel
