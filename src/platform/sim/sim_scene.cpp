#include "platform/sim/sim_scene.h"

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

constexpr std::string_view finderBundle = "com.apple.finder";

struct SceneWindow {
    const char* title;
    Rect frame;
    const char* document = nullptr;  // the file or folder it shows, as a file URL
};

struct SceneApplication {
    const char* bundleIdentifier;
    const char* name;
    const char* path;
    Color iconColor;
    std::vector<SceneWindow> windows;  // back to front
};

// Back to front: the last window listed ends up in front of all others.
const std::vector<SceneApplication>& sceneApplications() {
    static const std::vector<SceneApplication> applications = {
        {"com.apple.finder",
         "Finder",
         "/System/Library/CoreServices/Finder.app",
         Color::fromRGB(0x3478F6),
         {{"Applications", {40, 180, 720, 440}, "file:///Applications/"},
          {"Downloads", {880, 470, 520, 330}, "file:///Users/ada/Downloads/"}}},
        {"com.apple.mail",
         "Mail",
         "/System/Applications/Mail.app",
         Color::fromRGB(0x5AC8FA),
         {{"Inbox – iCloud", {300, 70, 1000, 640}}}},
        {"com.apple.Terminal",
         "Terminal",
         "/System/Applications/Utilities/Terminal.app",
         Color::fromRGB(0x8E8E93),
         {{"vistrel — zsh — 80×24", {110, 430, 585, 368}}}},
        {"com.apple.Notes",
         "Notes",
         "/System/Applications/Notes.app",
         Color::fromRGB(0xF7C631),
         {{"Notes", {760, 110, 640, 480}}}},
        {"com.apple.Safari",
         "Safari",
         "/Applications/Safari.app",
         Color::fromRGB(0x34C759),
         {{"Start Page", {80, 50, 1060, 720}}}},
    };
    return applications;
}

}  // namespace

std::string describeRect(Rect rect) {
    std::ostringstream text;
    text << "(" << std::lround(rect.x) << ", " << std::lround(rect.y) << ") "
         << std::lround(rect.width) << "×" << std::lround(rect.height);
    return text.str();
}

void populateDefaultScene(SimDesktop& desktop) {
    desktop.dock().launch();
    for (const SceneApplication& scene : sceneApplications()) {
        SimApplication application;
        application.bundleIdentifier = scene.bundleIdentifier;
        application.name = scene.name;
        // Finder's windows answer no "AXDocument" (nikitabobko/AeroSpace issue 247).
        application.exposesDocuments = scene.bundleIdentifier != std::string_view(finderBundle);
        const Pid pid = desktop.addApplication(std::move(application));
        SimInstalledApplication installed{
            scene.bundleIdentifier, scene.name, scene.path, scene.iconColor, {}};
        for (const SceneWindow& window : scene.windows) {
            SimWindow made;
            made.title = window.title;
            made.frame = window.frame;
            if (window.document != nullptr) made.document = window.document;
            installed.windows.push_back(made);
            desktop.addWindow(pid, std::move(made));
        }
        desktop.installations().install(std::move(installed));
    }
    // Windows of a second desktop, whose thumbnails WindowManager lists over these.
    desktop.dock().otherDesktop = {{0x9001, "com.apple.dt.Xcode", "Vistrel — main.mm"},
                                   {0x9002, "com.apple.MobileSMS", "Messages"}};
}

}  // namespace vistrel
