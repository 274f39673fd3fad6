#pragma once

#include "platform/mac/mac_accessibility.h"
#include "platform/mac/mac_agent_application.h"
#include "platform/mac/mac_appearance.h"
#include "platform/mac/mac_archiver.h"
#include "platform/mac/mac_defaults.h"
#include "platform/mac/mac_display_watch.h"
#include "platform/mac/mac_event_monitors.h"
#include "platform/mac/mac_event_tap_port.h"
#include "platform/mac/mac_executor.h"
#include "platform/mac/mac_file_system.h"
#include "platform/mac/mac_font_registrar.h"
#include "platform/mac/mac_info_dictionary.h"
#include "platform/mac/mac_key_panel.h"
#include "platform/mac/mac_launch_environment.h"
#include "platform/mac/mac_login_item.h"
#include "platform/mac/mac_modal_alert.h"
#include "platform/mac/mac_native_menus.h"
#include "platform/mac/mac_notification_center.h"
#include "platform/mac/mac_pasteboard.h"
#include "platform/mac/mac_process_runner.h"
#include "platform/mac/mac_report_dialog.h"
#include "platform/mac/mac_save_panel.h"
#include "platform/mac/mac_script_runner.h"
#include "platform/mac/mac_status_bar.h"
#include "platform/mac/mac_system_info.h"
#include "platform/mac/mac_system_log.h"
#include "platform/mac/mac_text.h"
#include "platform/mac/mac_updater.h"
#include "platform/mac/mac_uploader.h"
#include "platform/mac/mac_window_host.h"
#include "platform/mac/mac_window_server.h"
#include "platform/mac/mac_workspace.h"
#include "platform/platform.h"
#include "platform/posix/posix_file_writer.h"

namespace vistrel {

// The real machine: every platform interface over Apple's frameworks, for the life of
// the process.
class MacPlatform {
  public:
    MacPlatform()
        : platform_{.accessibility = accessibility_,
                    .windowServer = windowServer_,
                    .workspace = workspace_,
                    .screens = screens_,
                    .displayWatch = displayWatch_,
                    .defaults = defaults_,
                    .eventTap = eventTap_,
                    .executor = executor_,
                    .clock = clock_,
                    .systemLog = systemLog_,
                    .loginItem = loginItem_,
                    .windowHost = windowHost_,
                    .text = text_,
                    .notifications = notifications_,
                    .updates = updates_,
                    .application = application_,
                    .systemInfo = systemInfo_,
                    .infoDictionary = infoDictionary_,
                    .files = files_,
                    .alert = alert_,
                    .reportDialog = reportDialog_,
                    .savePanel = savePanel_,
                    .pasteboard = pasteboard_,
                    .archiver = archiver_,
                    .uploader = uploader_,
                    .fonts = fonts_,
                    .statusBar = statusBar_,
                    .panels = panels_,
                    .eventMonitors = eventMonitors_,
                    .menus = menus_,
                    .appearance = appearance_,
                    .launch = launch_,
                    .processes = processes_,
                    .scripts = scripts_,
                    .fileWriter = fileWriter_} {}
    MacPlatform(const MacPlatform&) = delete;
    MacPlatform& operator=(const MacPlatform&) = delete;

    Platform& platform() { return platform_; }

  private:
    MacAccessibility accessibility_;
    MacWindowServer windowServer_;
    MacWorkspace workspace_;
    MacScreenList screens_;
    MacDisplayWatch displayWatch_;
    MacDefaults defaults_;
    MacEventTapPort eventTap_;
    MacExecutor executor_;
    MacClock clock_;
    MacSystemLog systemLog_;
    MacLoginItem loginItem_;
    MacWindowHost windowHost_;
    MacTextMeasurer text_;
    MacNotificationCenter notifications_;
    MacUpdateService updates_;
    MacAgentApplication application_;
    MacSystemInfo systemInfo_;
    MacInfoDictionary infoDictionary_;
    MacFileSystem files_;
    MacModalAlert alert_;
    MacReportDialog reportDialog_;
    MacSavePanel savePanel_;
    MacPasteboard pasteboard_;
    MacArchiver archiver_;
    MacUploader uploader_;
    MacFontRegistrar fonts_;
    MacStatusBar statusBar_;
    MacKeyPanelHost panels_;
    MacEventMonitors eventMonitors_;
    MacNativeMenus menus_;
    MacAppearance appearance_;
    MacLaunchEnvironment launch_;
    MacProcessRunner processes_;
    MacScriptRunner scripts_;
    PosixFileWriter fileWriter_;
    Platform platform_;
};

}  // namespace vistrel
