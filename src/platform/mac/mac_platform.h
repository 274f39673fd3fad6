#pragma once

#include "platform/mac/mac_accessibility.h"
#include "platform/mac/mac_agent_application.h"
#include "platform/mac/mac_archiver.h"
#include "platform/mac/mac_defaults.h"
#include "platform/mac/mac_event_tap_port.h"
#include "platform/mac/mac_executor.h"
#include "platform/mac/mac_file_system.h"
#include "platform/mac/mac_font_registrar.h"
#include "platform/mac/mac_info_dictionary.h"
#include "platform/mac/mac_login_item.h"
#include "platform/mac/mac_modal_alert.h"
#include "platform/mac/mac_notification_center.h"
#include "platform/mac/mac_report_dialog.h"
#include "platform/mac/mac_save_panel.h"
#include "platform/mac/mac_system_info.h"
#include "platform/mac/mac_system_log.h"
#include "platform/mac/mac_text.h"
#include "platform/mac/mac_updater.h"
#include "platform/mac/mac_uploader.h"
#include "platform/mac/mac_window_host.h"
#include "platform/mac/mac_window_server.h"
#include "platform/mac/mac_workspace.h"
#include "platform/platform.h"

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
                    .archiver = archiver_,
                    .uploader = uploader_,
                    .fonts = fonts_} {}
    MacPlatform(const MacPlatform&) = delete;
    MacPlatform& operator=(const MacPlatform&) = delete;

    Platform& platform() { return platform_; }

  private:
    MacAccessibility accessibility_;
    MacWindowServer windowServer_;
    MacWorkspace workspace_;
    MacScreenList screens_;
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
    MacArchiver archiver_;
    MacUploader uploader_;
    MacFontRegistrar fonts_;
    Platform platform_;
};

}  // namespace vistrel
