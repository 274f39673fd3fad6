#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/sim/sim_accessibility.h"
#include "platform/sim/sim_agent_application.h"
#include "platform/sim/sim_appearance.h"
#include "platform/sim/sim_archiver.h"
#include "platform/sim/sim_clock.h"
#include "platform/sim/sim_defaults.h"
#include "platform/sim/sim_display_watch.h"
#include "platform/sim/sim_dock.h"
#include "platform/sim/sim_event_monitors.h"
#include "platform/sim/sim_event_tap_port.h"
#include "platform/sim/sim_executor.h"
#include "platform/sim/sim_file_system.h"
#include "platform/sim/sim_file_writer.h"
#include "platform/sim/sim_font_registrar.h"
#include "platform/sim/sim_info_dictionary.h"
#include "platform/sim/sim_installations.h"
#include "platform/sim/sim_key_panel.h"
#include "platform/sim/sim_launch_environment.h"
#include "platform/sim/sim_login_item.h"
#include "platform/sim/sim_modal_alert.h"
#include "platform/sim/sim_model.h"
#include "platform/sim/sim_native_menus.h"
#include "platform/sim/sim_notification_center.h"
#include "platform/sim/sim_pasteboard.h"
#include "platform/sim/sim_process_runner.h"
#include "platform/sim/sim_report_dialog.h"
#include "platform/sim/sim_save_panel.h"
#include "platform/sim/sim_script_runner.h"
#include "platform/sim/sim_status_bar.h"
#include "platform/sim/sim_system_info.h"
#include "platform/sim/sim_system_log.h"
#include "platform/sim/sim_text_measurer.h"
#include "platform/sim/sim_updater.h"
#include "platform/sim/sim_uploader.h"
#include "platform/sim/sim_window_host.h"
#include "platform/sim/sim_window_server.h"
#include "platform/sim/sim_workspace.h"

namespace vistrel {

// What macOS does to windows and notifications when displays come and go. Public reports
// differ, by macOS version and by application, so each way is a variant a test can choose.
struct SimDisplayBehavior {
    // Where the windows of an unplugged display go.
    enum class Unplugged {
        // onto the primary display (aluxian/Messenger-for-Desktop issue 427: "all other
        // application's windows are gathered to the MacBook Pro's internal display");
        gathered,
        // nowhere: they keep coordinates off every screen (manaflow-ai/cmux issue 2824
        // measured x=956 y=-324 on a 1512×982 display after the unplug).
        leftOffScreen,
    };
    Unplugged unplugged = Unplugged::gathered;
    // The screen-parameters notification comes again a moment after the first, as displays
    // reconnect in stages (gtarpenning/agent-island, ScreenObserver.swift, debounces it).
    bool toldInStages = true;
    // macOS itself puts the windows back when the same display returns (rxhanson/Rectangle
    // issue 777: "MacOS was taking care of this issue perfectly").
    bool replugRestores = false;
};

// The simulated screen size every scene starts with.
inline constexpr Rect simPrimaryScreen{0, 0, 1440, 900};
// The menu bar's and the Dock's share of a simulated screen, in points.
inline constexpr double simMenuBarHeight = 25;
inline constexpr double simDockHeight = 70;

// One coherent simulated desktop: applications and their windows, screens, the defaults
// domains, the Accessibility grant, the login item, the system log, an event stream and
// virtual time. Every platform interface reads and writes this one model, so a test can
// act through the core and look at the result here.
class SimDesktop {
  public:
    // An empty desktop with one 1440×900 screen, trusted for Accessibility, as the agent
    // itself ("com.quillmarsh.vistrel").
    SimDesktop();
    ~SimDesktop();
    SimDesktop(const SimDesktop&) = delete;
    SimDesktop& operator=(const SimDesktop&) = delete;

    Platform& platform() { return platform_; }
    SimClock& clock() { return clock_; }
    SimExecutor& executor() { return executor_; }
    SimAccessibility& accessibility() { return accessibility_; }
    SimWindowServer& windowServer() { return windowServer_; }
    SimWorkspace& workspace() { return workspace_; }
    SimDefaults& defaults() { return defaults_; }
    SimEventTapPort& eventTap() { return eventTap_; }
    SimSystemLog& systemLog() { return systemLog_; }
    SimLoginItem& loginItem() { return loginItem_; }
    SimWindowHost& windowHost() { return windowHost_; }
    SimNotificationCenter& notifications() { return notifications_; }
    SimUpdateService& updates() { return updates_; }
    SimAgentApplication& application() { return application_; }
    SimSystemInfo& systemInfo() { return systemInfo_; }
    SimInfoDictionary& infoDictionary() { return infoDictionary_; }
    SimFileSystem& files() { return files_; }
    SimModalAlert& alert() { return alert_; }
    SimReportDialog& reportDialog() { return reportDialog_; }
    SimSavePanel& savePanel() { return savePanel_; }
    SimPasteboard& pasteboard() { return pasteboard_; }
    SimArchiver& archiver() { return archiver_; }
    SimUploader& uploader() { return uploader_; }
    SimFontRegistrar& fonts() { return fonts_; }
    // The menu bar's status items, the agent's key panels, event monitors, native menus and
    // the system appearance.
    SimStatusBar& statusBar() { return statusBar_; }
    SimKeyPanelHost& panels() { return panels_; }
    SimEventMonitors& eventMonitors() { return eventMonitors_; }
    SimNativeMenus& menus() { return menus_; }
    SimAppearance& appearance() { return appearance_; }
    SimLaunchEnvironment& launch() { return launch_; }
    SimProcessRunner& processes() { return processes_; }
    // osascript, answering Finder's windows.
    SimScriptRunner& scripts() { return scripts_; }
    // Appending to real files, with a full disk to stage.
    SimFileWriter& fileWriter() { return fileWriter_; }
    // Fills the disk (or frees it): file appends fail and defaults writes do not take.
    void setDiskFull(bool full) {
        fileWriter_.setDiskFull(full);
        defaults_.setDiskFull(full);
    }
    // The Dock and its Mission Control; not running until launched or opened.
    SimDock& dock() { return dock_; }

    // Applications on the simulated disk, and their launches.
    SimInstallations& installations() { return installations_; }

    // Applications, in the workspace's order.
    Pid addApplication(SimApplication application);
    SimApplication* application(Pid pid);
    const std::vector<SimApplication>& applications() const { return applications_; }
    void removeApplication(Pid pid);

    // Windows, front to back. A new window opens in front of the others.
    SimWindowId addWindow(Pid pid, SimWindow window);
    SimWindow* window(SimWindowId id);
    const std::vector<SimWindow>& windows() const { return windows_; }
    std::vector<SimWindowId> windowsOf(Pid pid) const;
    void bringToFront(SimWindowId id);
    // Every window of the application to the front, keeping their order among themselves.
    void bringApplicationToFront(Pid pid);
    void closeWindow(SimWindowId id);
    // Windows the window server shows: open, not minimized, application not hidden or gone.
    bool isOnScreen(const SimWindow& window) const;
    // The front-most on-screen window containing the point.
    std::optional<SimWindowId> windowAt(Point point) const;

    // Screens, in NSScreen.screens order, frames in AppKit coordinates.
    std::vector<ScreenDescription>& screens() { return screens_; }
    std::optional<std::size_t> mainScreenIndex = 0;
    // NSScreen.screensHaveSeparateSpaces, on by default as on a Mac.
    bool separateSpaces = true;
    // Adds a screen to the right of the last one (AppKit coordinates, tops aligned).
    void addScreenToTheRight(Size size);
    // The display notifications the agent observes.
    SimDisplayWatch& displayWatch() { return displayWatch_; }
    // A display plugged in to the right of the others, and one unplugged (never the
    // primary): macOS tells of each in stages, a notification now and another a moment later,
    // and moves the windows of an unplugged display onto the primary one. While the Mac
    // sleeps nothing is told; waking tells of the wake, and of any change made meanwhile.
    void plugDisplay(std::uint32_t displayID, Size size);
    SimDisplayBehavior displayBehavior;
    // The second stage of a display change comes this long after the first.
    static constexpr double secondStage = 0.6;
    void unplugDisplay(std::uint32_t displayID);
    // Closing the laptop's lid with another display connected takes the built-in display away
    // and makes the next one primary, as in clamshell use (rxhanson/Rectangle issue 777); with
    // none the Mac sleeps (shakeiton.app, closed-lid mode: "your Mac will still sleep on
    // lid-close"). Opening it brings the built-in display back as the primary one, the others
    // where they were beside it.
    void closeLid();
    void openLid();
    // The Mac goes to sleep (NSWorkspace's didWakeNotification, Apple's documentation, is
    // posted when it wakes), and wakes.
    void suspend();
    void wake();
    bool suspended() const { return suspended_; }
    // The screens' frames in accessibility coordinates (origin at the primary's top-left).
    std::vector<Rect> accessibilityScreenFrames() const;

    // The agent's own process and bundle.
    Pid ownPid = 100;
    BundleInfo bundle{std::string("com.quillmarsh.vistrel"), "1.0", "1",
                      "/Applications/Vistrel.app"};

    // The Accessibility grant; revoking it makes every accessibility call fail.
    bool trusted = true;
    int trustPrompts = 0;
    // A stale grant: the system still reports the grant, but every accessibility call
    // answers this error, as after an update or a re-signed build (AXSwift issue 39).
    std::optional<AXError> staleGrant;

  private:
    void addScreenToTheRight(Size size, std::uint32_t displayID);
    // Tells the agent the displays changed, in the stages macOS tells it.
    void tellDisplaysChanged();
    // Moves the windows standing on the frame onto the primary display's visible area.
    void gatherWindowsFrom(Rect frame);
    // Moves every display's AppKit frames and every window by the offsets, as when another
    // display becomes the primary one.
    void shiftEverything(Point appKit, Point accessibility);

    SimClock clock_;
    SimExecutor executor_;
    SimAccessibility accessibility_;
    SimWindowServer windowServer_;
    SimWorkspace workspace_;
    SimDefaults defaults_;
    SimEventTapPort eventTap_;
    SimSystemLog systemLog_;
    SimLoginItem loginItem_;
    SimWindowHost windowHost_;
    SimTextMeasurer text_;
    SimScreenList screenList_;
    SimDisplayWatch displayWatch_{executor_};
    SimNotificationCenter notifications_{executor_};
    SimUpdateService updates_;
    SimAgentApplication application_;
    SimSystemInfo systemInfo_;
    SimInfoDictionary infoDictionary_;
    SimFileSystem files_;
    SimModalAlert alert_;
    SimReportDialog reportDialog_;
    SimSavePanel savePanel_;
    SimPasteboard pasteboard_;
    SimArchiver archiver_;
    SimUploader uploader_;
    SimFontRegistrar fonts_{bundle.path};
    SimStatusBar statusBar_{*this};
    SimKeyPanelHost panels_;
    SimEventMonitors eventMonitors_;
    SimNativeMenus menus_;
    SimAppearance appearance_;
    SimLaunchEnvironment launch_;
    SimProcessRunner processes_;
    SimScriptRunner scripts_{*this};
    SimFileWriter fileWriter_;
    Platform platform_;
    SimDock dock_;
    SimInstallations installations_{*this};

    std::vector<SimApplication> applications_;
    std::vector<SimWindow> windows_;
    std::vector<ScreenDescription> screens_;
    bool suspended_ = false;
    // The built-in display while the lid is closed, and where the new primary display stood
    // (its AppKit and its accessibility origin) when the lid closed.
    // The frames of the windows each unplugged display held, for a macOS that puts them back.
    std::map<std::uint32_t, std::vector<std::pair<SimWindowId, Rect>>> unpluggedFrames_;
    std::optional<ScreenDescription> lidClosed_;
    Point closedAppKitOrigin_;
    Point closedAccessibilityOrigin_;
    bool changedWhileSuspended_ = false;
    SimWindowId nextWindowId_ = 1;
    Pid nextPid_ = 500;
};

// Installs a desktop as the platform for the lifetime of this object.
class ScopedPlatform {
  public:
    explicit ScopedPlatform(SimDesktop& desktop) { installPlatform(&desktop.platform()); }
    ~ScopedPlatform() { installPlatform(nullptr); }
    ScopedPlatform(const ScopedPlatform&) = delete;
    ScopedPlatform& operator=(const ScopedPlatform&) = delete;
};

}  // namespace vistrel
