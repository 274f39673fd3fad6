#pragma once

#include "platform/mac/mac_accessibility.h"
#include "platform/mac/mac_appearance.h"
#include "platform/mac/mac_defaults.h"
#include "platform/mac/mac_event_monitors.h"
#include "platform/mac/mac_event_tap_port.h"
#include "platform/mac/mac_executor.h"
#include "platform/mac/mac_font_registrar.h"
#include "platform/mac/mac_key_panel.h"
#include "platform/mac/mac_login_item.h"
#include "platform/mac/mac_native_menus.h"
#include "platform/mac/mac_status_bar.h"
#include "platform/mac/mac_system_log.h"
#include "platform/mac/mac_text.h"
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
        : platform_{accessibility_, windowServer_, workspace_,  screens_,    defaults_,
                    eventTap_,      executor_,     clock_,      systemLog_,  loginItem_,
                    windowHost_,    text_,         fonts_,      statusBar_,  panels_,
                    eventMonitors_, menus_,        appearance_, application_} {}
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
    MacFontRegistrar fonts_;
    MacStatusBar statusBar_;
    MacKeyPanelHost panels_;
    MacEventMonitors eventMonitors_;
    MacNativeMenus menus_;
    MacAppearance appearance_;
    MacAgentApplication application_;
    Platform platform_;
};

}  // namespace vistrel
