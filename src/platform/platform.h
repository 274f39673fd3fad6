#pragma once

#include <cstdint>
#include <memory>

#include "platform/accessibility.h"
#include "platform/agent_application.h"
#include "platform/appearance.h"
#include "platform/archiver.h"
#include "platform/defaults.h"
#include "platform/display_watch.h"
#include "platform/event_monitors.h"
#include "platform/event_tap_port.h"
#include "platform/executor.h"
#include "platform/file_system.h"
#include "platform/font_registrar.h"
#include "platform/info_dictionary.h"
#include "platform/key_panel.h"
#include "platform/launch_environment.h"
#include "platform/login_item.h"
#include "platform/modal_alert.h"
#include "platform/native_menu.h"
#include "platform/notification_center.h"
#include "platform/pasteboard.h"
#include "platform/process_runner.h"
#include "platform/report_dialog.h"
#include "platform/save_panel.h"
#include "platform/screen_list.h"
#include "platform/script_runner.h"
#include "platform/status_bar.h"
#include "platform/system_info.h"
#include "platform/system_log.h"
#include "platform/text_measurer.h"
#include "platform/updater.h"
#include "platform/uploader.h"
#include "platform/window_host.h"
#include "platform/window_server.h"
#include "platform/workspace.h"

namespace vistrel {

class FileWriter;

// The machine as the core sees it: one implementation of every platform interface. The
// macOS build installs its own at start-up; tests and vistrel-sim install the simulated
// desktop. The core reaches it through platform() and never keeps a reference across an
// installation.
struct Platform {
    Accessibility& accessibility;
    WindowServer& windowServer;
    Workspace& workspace;
    ScreenList& screens;
    DisplayWatch& displayWatch;
    Defaults& defaults;
    EventTapPort& eventTap;
    Executor& executor;
    Clock& clock;
    SystemLog& systemLog;
    LoginItem& loginItem;
    WindowHost& windowHost;
    TextMeasurer& text;
    NotificationCenter& notifications;
    UpdateService& updates;
    AgentApplication& application;
    SystemInfo& systemInfo;
    InfoDictionary& infoDictionary;
    FileSystem& files;
    ModalAlert& alert;
    ReportDialog& reportDialog;
    SavePanel& savePanel;
    Pasteboard& pasteboard;
    Archiver& archiver;
    Uploader& uploader;
    FontRegistrar& fonts;
    StatusBar& statusBar;
    KeyPanelHost& panels;
    EventMonitors& eventMonitors;
    NativeMenus& menus;
    SystemAppearance& appearance;
    LaunchEnvironment& launch;
    ProcessRunner& processes;
    ScriptRunner& scripts;
    FileWriter& fileWriter;
};

// The installed platform. Calling it with none installed is a programming error.
Platform& platform();

// Installs a platform (or removes it, with nullptr). Objects that cache what they made
// from the platform compare platformGeneration() to know when to make it again.
void installPlatform(Platform* platform);
std::uint64_t platformGeneration();

// The one T of the installed platform, made by `make` on first use and made anew when another
// platform is installed (tests install one per case). Main thread only.
template <typename T, typename Make>
T& perPlatform(Make make) {
    static std::unique_ptr<T> instance;
    static std::uint64_t generation = 0;
    if (!instance || generation != platformGeneration()) {
        instance = make();
        generation = platformGeneration();
    }
    return *instance;
}

}  // namespace vistrel
