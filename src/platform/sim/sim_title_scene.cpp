#include "platform/sim/sim_title_scene.h"

#include <string>
#include <utility>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

Pid addApplication(SimDesktop& desktop, std::string bundleIdentifier, std::string name) {
    SimApplication application;
    application.bundleIdentifier = std::move(bundleIdentifier);
    application.name = std::move(name);
    return desktop.addApplication(std::move(application));
}

SimWindowId addWindow(SimDesktop& desktop, Pid pid, std::string title, Rect frame,
                      std::optional<std::string> serverTitle = std::nullopt) {
    SimWindow window;
    window.title = std::move(title);
    window.frame = frame;
    window.serverTitle = std::move(serverTitle);
    return desktop.addWindow(pid, std::move(window));
}

}  // namespace

SimTitleScene addTitleScene(SimDesktop& desktop) {
    SimTitleScene scene;
    // The window server names Chrome's window after the page, its accessibility title adds
    // " - Google Chrome" (gbrueckner/Snapp issue 9: "John Doe" against "John Doe - Google
    // Chrome"; godbout/WooshyWindowToTheForeground issue 2: "New Tab" against "New Tab -
    // Google Chrome"), followed by the profile's name when several profiles are in use.
    const Pid chrome = addApplication(desktop, "com.google.Chrome", "Google Chrome");
    scene.browserPage = addWindow(desktop, chrome, "Release notes - Google Chrome - Work",
                                  {200, 120, 900, 640}, "Release notes");
    // Mission Control shows some windows' thumbnails with no "AXTitle" at all
    // (mogenson/PaperWM.spoon issue 60 lists one among titled ones).
    const Pid word = addApplication(desktop, "com.microsoft.Word", "Microsoft Word");
    scene.untitled = addWindow(desktop, word, "Document1", {300, 200, 800, 700}, "");
    // Windows of one title are told apart in Mission Control only by where and how they are
    // drawn (mogenson/Drag.spoon issue 1).
    const Pid textEdit = addApplication(desktop, "com.apple.TextEdit", "TextEdit");
    scene.alikeFirst = addWindow(desktop, textEdit, "Untitled", {100, 100, 600, 400});
    scene.alikeSecond = addWindow(desktop, textEdit, "Untitled", {700, 300, 600, 400});
    const Pid preview = addApplication(desktop, "com.apple.Preview", "Preview");
    scene.wide = addWindow(desktop, preview, "Receipt.pdf", {100, 100, 900, 400});
    scene.tall = addWindow(desktop, preview, "Receipt.pdf", {700, 100, 400, 700});
    return scene;
}

}  // namespace vistrel
