#pragma once

#include <cstdint>

#include "platform/accessibility.h"
#include "platform/agent_application.h"
#include "platform/appearance.h"
#include "platform/defaults.h"
#include "platform/event_monitors.h"
#include "platform/event_tap_port.h"
#include "platform/executor.h"
#include "platform/font_registrar.h"
#include "platform/key_panel.h"
#include "platform/login_item.h"
#include "platform/native_menu.h"
#include "platform/screen_list.h"
#include "platform/status_bar.h"
#include "platform/system_log.h"
#include "platform/text_measurer.h"
#include "platform/window_host.h"
#include "platform/window_server.h"
#include "platform/workspace.h"

namespace vistrel {

// The machine as the core sees it: one implementation of every platform interface. The
// macOS build installs its own at start-up; tests and vistrel-sim install the simulated
// desktop. The core reaches it through platform() and never keeps a reference across an
// installation.
struct Platform {
    Accessibility& accessibility;
    WindowServer& windowServer;
    Workspace& workspace;
    ScreenList& screens;
    Defaults& defaults;
    EventTapPort& eventTap;
    Executor& executor;
    Clock& clock;
    SystemLog& systemLog;
    LoginItem& loginItem;
    WindowHost& windowHost;
    TextMeasurer& text;
    FontRegistrar& fonts;
    StatusBar& statusBar;
    KeyPanelHost& panels;
    EventMonitors& eventMonitors;
    NativeMenus& menus;
    SystemAppearance& appearance;
    AgentApplication& application;
};

// The installed platform. Calling it with none installed is a programming error.
Platform& platform();

// Installs a platform (or removes it, with nullptr). Objects that cache what they made
// from the platform compare platformGeneration() to know when to make it again.
void installPlatform(Platform* platform);
std::uint64_t platformGeneration();

}  // namespace vistrel
