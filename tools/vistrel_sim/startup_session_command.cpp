#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/app_delegate.h"
#include "platform/sim/sim_scene.h"
#include "session_rig.h"
#include "settings/preference_key.h"
#include "settings/settings_launcher.h"
#include "settings/shared.h"
#include "settings/updates.h"
#include "settings_app/settings_model.h"
#include "sim_command.h"
#include "sim_pictures.h"
#include "tracking/mission_control_detector.h"

namespace vistrel {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view sessionName = "startup";
constexpr std::string_view diskImagePath = "/Volumes/Vistrel/Vistrel.app";
constexpr std::size_t notNowButton = 1;
// Long enough for the agent's delayed start-up work and the Settings app's launch.
constexpr double launchSettle = 1.0;
// Long enough for the engine to see a grant given in System Settings.
constexpr double grantSettle = 6.0;

// The agent as a user meets it: the first launch with its welcome guide and the grant, a
// second copy that quits, the four commands the Settings app sends, a reopen with the icon
// hidden, and a later launch from the disk image answered "Not Now". Every log line is
// printed as the agent writes it; pictures show the menu bar, Mission Control and the alert.
class StartupSession {
  public:
    explicit StartupSession(SimCommandContext& context)
        : context_(context), rig_(context, sessionName, SessionRig::Start::nothing) {
        SimDesktop& desktop = rig_.desktop();
        SimInstalledApplication settings;
        settings.bundleIdentifier = std::string(SettingsModel::bundleIdentifier);
        settings.name = std::string(SettingsModel::appName);
        settings.path = SettingsLauncher::path(desktop.bundle.path);
        desktop.installations().install(settings);
        // A build with an update key, so the updater starts and the command reaches it.
        desktop.infoDictionary().values[std::string(Updates::publicKeyInfoKey)] =
            std::string(Updates::publicKeyLength, 'k');
        desktop.trusted = false;
        desktop.alert().observer = [this](const AlertContent& alert, std::optional<std::size_t>) {
            alertPicture(alert);
        };
    }

    int play() {
        return rig_.play("Start-up: first launch, a second copy, commands, reopen, disk image",
                         steps(), [this] { return hovered_; });
    }

  private:
    std::vector<SessionRig::Step> steps() {
        return {
            {"first-launch", "first launch from /Applications, without the Accessibility grant",
             [this] { return firstLaunch(); }},
            {"granted", "the grant is given in the welcome guide; Mission Control opens",
             [this] { return grantAndHover(); }},
            {"second-copy", "a second copy is opened while the first runs",
             [this] { return secondCopy(); }},
            {"request-accessibility", "the Settings app sends \"requestAccessibility\"",
             [this] { return requestAccessibility(); }},
            {"launch-at-login", "the Settings app sends \"setLaunchAtLogin\" with value true",
             [this] { return launchAtLogin(); }},
            {"check-for-updates", "the Settings app sends \"checkForUpdates\"",
             [this] { return checkForUpdates(); }},
            {"icon-hidden", "the icon is hidden in Settings, which sends \"applySettings\"",
             [this] { return hideIcon(); }},
            {"reopened", "Vistrel is opened again from the Finder while its icon is hidden",
             [this] { return reopen(); }},
            {"disk-image", "after quitting, Vistrel is opened from its disk image: Not Now",
             [this] { return launchFromDiskImage(); }},
        };
    }

    bool firstLaunch() {
        launch();
        SimDesktop& desktop = rig_.desktop();
        if (desktop.trustPrompts != 0) return rig_.fail("the agent prompted on a first launch");
        if (!printSettingsOpened()) return rig_.fail("the welcome guide did not open");
        return hasStatusItem() || rig_.fail("no status item");
    }

    bool grantAndHover() {
        SimDesktop& desktop = rig_.desktop();
        desktop.trusted = true;
        // The welcome guide records that it was finished.
        Shared::store()->set(std::string(PreferenceKey::onboardingCompleted), true);
        desktop.executor().advance(grantSettle);
        if (!rig_.openMissionControl()) return false;
        const auto thumbnail = largestThumbnail(desktop);
        if (!thumbnail) return rig_.fail("Mission Control shows no thumbnail");
        rig_.deliver(SimInput::mouseMoved({thumbnail->frame.midX(), thumbnail->frame.midY()}));
        hovered_ = thumbnail->window;
        if (!agent_->engine()->target()) return rig_.fail("no buttons over the thumbnail");
        context_.out << "  the buttons show over \"" << rig_.titleOf(thumbnail->window) << "\"\n";
        return true;
    }

    bool secondCopy() {
        hovered_.reset();
        if (!rig_.closeMissionControl()) return false;
        SimDesktop& desktop = rig_.desktop();
        SimApplication copy{.bundleIdentifier = *desktop.bundle.identifier, .name = "Vistrel"};
        const Pid secondPid = desktop.addApplication(copy);
        AppDelegate second;
        second.applicationDidFinishLaunching();
        desktop.executor().advance(launchSettle);
        desktop.removeApplication(secondPid);
        if (!desktop.application().terminated()) return rig_.fail("the second copy kept running");
        if (desktop.statusBar().items().size() != 1) return rig_.fail("a second status item");
        context_.out << "  the second copy quit at once; the first runs on\n";
        return true;
    }

    // Sends one command as the Settings app does and lets the agent handle it.
    void post(std::string_view name, std::optional<bool> value = std::nullopt) {
        SimDesktop& desktop = rig_.desktop();
        DefaultsValue::Dictionary userInfo{{"command", std::string(name)}};
        if (value) userInfo.emplace("value", *value);
        desktop.notifications().post(std::string(Shared::Command::name), userInfo);
        desktop.executor().runUntilIdle();
    }

    bool requestAccessibility() {
        const int prompts = rig_.desktop().trustPrompts;
        post("requestAccessibility");
        if (rig_.desktop().trustPrompts == prompts) return rig_.fail("no Accessibility prompt");
        context_.out << "  the system's Accessibility prompt was shown\n";
        return true;
    }

    bool launchAtLogin() {
        post("setLaunchAtLogin", true);
        if (rig_.desktop().loginItem().status() != LoginItemStatus::enabled)
            return rig_.fail("the login item was not registered");
        context_.out << "  the login item is registered\n";
        return true;
    }

    bool checkForUpdates() {
        const int checks = rig_.desktop().updates().record.checks;
        post("checkForUpdates");
        if (rig_.desktop().updates().record.checks == checks)
            return rig_.fail("the updater was not asked to check");
        context_.out << "  the updater checks for updates, in its own window\n";
        return true;
    }

    bool hideIcon() {
        Shared::store()->set(std::string(PreferenceKey::menuBarIconHidden), true);
        post("applySettings");
        return !hasStatusItem() || rig_.fail("the icon is still in the menu bar");
    }

    bool reopen() {
        agent_->applicationShouldHandleReopen();
        rig_.desktop().executor().advance(launchSettle);
        if (!hasStatusItem()) return rig_.fail("the icon did not come back");
        return printSettingsOpened() || rig_.fail("Settings did not open");
    }

    bool launchFromDiskImage() {
        SimDesktop& desktop = rig_.desktop();
        agent_.reset();
        desktop.removeApplication(agentPid_);
        context_.out << "  quit Vistrel\n";
        desktop.bundle.path = std::string(diskImagePath);
        desktop.alert().answers.push_back(notNowButton);
        launch();
        if (desktop.alert().shown.empty()) return rig_.fail("no offer to move");
        context_.out << "  answered \"" << desktop.alert().shown.back().buttons[notNowButton]
                     << "\": Vistrel runs from " << desktop.bundle.path << "\n";
        return hasStatusItem() || rig_.fail("no status item after Not Now");
    }

    void launch() {
        SessionRig::Agent agent = rig_.launchAgent(launchSettle);
        agent_ = std::move(agent.delegate);
        agentPid_ = agent.pid;
    }

    bool hasStatusItem() {
        const auto& items = rig_.desktop().statusBar().items();
        return !items.empty() && items.front()->isVisible();
    }

    // Prints the Settings app's launches since the last call; false when there were none.
    bool printSettingsOpened() {
        const auto& requests = rig_.desktop().workspace().openRequests;
        const bool opened = requests.size() > settingsOpened_;
        for (; settingsOpened_ < requests.size(); ++settingsOpened_) {
            context_.out << "  opened Vistrel Settings";
            for (const std::string& argument : requests[settingsOpened_].second.arguments)
                context_.out << " " << argument;
            context_.out << "\n";
        }
        return opened;
    }

    void alertPicture(const AlertContent& alert) {
        const fs::path path = context_.outputDirectory / (std::string(sessionName) + "-alert-" +
                                                          std::to_string(++alerts_) + ".png");
        if (writeAlertPicture(rig_.desktop(), alert, std::nullopt, path)) {
            context_.out << "  wrote " << path.string() << "\n";
        } else {
            context_.out << "  could not write " << path.string() << "\n";
        }
    }

    SimCommandContext& context_;
    SessionRig rig_;
    std::unique_ptr<AppDelegate> agent_;
    Pid agentPid_ = 0;
    std::optional<SimWindowId> hovered_;
    std::size_t settingsOpened_ = 0;
    int alerts_ = 0;
};

int playStartupSession(SimCommandContext& context) {
    return StartupSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("startup", "plays the agent's start-up: first launch to disk image", 70,
                    playStartupSession);

}  // namespace vistrel
