#include "windows/window_actions.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/log.h"
#include "platform/platform.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "tracking/ax.h"
#include "windows/lazy_queue.h"
#include "windows/screens.h"
#include "windows/window_attribute.h"
#include "windows/window_mover.h"

namespace vistrel {

namespace {

// The frames windows had before they were filled, by the hash of their element. Belongs
// to the installed platform (element hashes mean nothing to another one) and is touched
// only from the accessibility queue, which runs one action at a time.
struct PreviousFrames {
    std::unordered_map<std::size_t, Rect> frames;
    std::uint64_t generation = 0;
};

std::unordered_map<std::size_t, Rect>& previousFrames() {
    static PreviousFrames state;
    if (state.generation != platformGeneration()) {
        state.frames.clear();
        state.generation = platformGeneration();
    }
    return state.frames;
}

std::string_view logName(Hotkey hotkey) {
    switch (hotkey) {
        case Hotkey::close:
            return "close window";
        case Hotkey::closeAll:
            return "close all windows";
        case Hotkey::minimize:
            return "minimize window";
        case Hotkey::maximize:
            return "maximize window";
        case Hotkey::hide:
            return "hide app containing window";
        case Hotkey::hideOthers:
            return "hide apps not containing window";
        case Hotkey::kill:
            return "kill app containing window";
    }
    return "act on window";
}

void sleep(double seconds) {
    platform().clock.sleep(seconds);
}

bool pressButton(const AXElement& window, std::string_view button) {
    const auto found = AX::element(window, button, WindowAttribute::actionTimeout);
    return found && WindowAttribute::press(*found);
}

bool close(const AXElement& window) {
    return pressButton(window, AX::closeButton);
}

// Hides or force-quits the running application; false when it no longer runs.
bool onApplication(Pid pid, bool (Workspace::*call)(Pid)) {
    Workspace& workspace = platform().workspace;
    return workspace.application(pid) && (workspace.*call)(pid);
}

bool readsTrue(const AXElement& window, std::string_view attribute) {
    return AX::value<bool>(window, attribute).value_or(false);
}

// Whether the full-screen state differs from `was` once the window had time to switch. A
// window that can no longer be read counts as out of full screen.
bool changed(const AXElement& window, bool was) {
    sleep(WindowActions::fullScreenSettle);
    return was != readsTrue(window, AX::fullScreen);
}

// Read from a store of its own: this runs on the accessibility queue, and the shared
// Settings instance belongs to the main thread.
bool fills() {
    return Settings(Shared::store()).maximizeFills();
}

// Mission Control is still on screen when the action starts; full screen is refused
// until it has gone, so leave it first.
void leaveMissionControl() {
    const auto escape = static_cast<std::uint16_t>(KeyCode::escape);
    platform().windowServer.postKey(escape, true);
    platform().windowServer.postKey(escape, false);
}

// The visible frame, in accessibility coordinates, of the screen holding the window's
// centre; else of the main screen; else of the first. Nothing without screens. Main thread.
std::optional<Rect> fillTarget(Rect frame) {
    ScreenList& list = platform().screens;
    const std::vector<ScreenDescription> screens = list.screens();
    if (screens.empty()) return std::nullopt;
    const double primaryHeight = screens.front().frame.height;
    const Point centre{frame.midX(), primaryHeight - frame.midY()};
    const ScreenDescription* target = nullptr;
    for (const ScreenDescription& screen : screens) {
        if (screen.frame.contains(centre)) {
            target = &screen;
            break;
        }
    }
    if (target == nullptr) {
        const auto main = list.mainScreenIndex();
        target = main && *main < screens.size() ? &screens[*main] : &screens.front();
    }
    return Screens::flip(target->visibleFrame, primaryHeight);
}

bool near(const Rect& a, const Rect& b) {
    const double t = WindowActions::fillTolerance;
    return std::abs(a.minX() - b.minX()) < t && std::abs(a.minY() - b.minY()) < t &&
           std::abs(a.width - b.width) < t && std::abs(a.height - b.height) < t;
}

bool perform(Hotkey hotkey, const AXElement& window, Pid pid) {
    switch (hotkey) {
        case Hotkey::close:
            return close(window);
        case Hotkey::closeAll:
            return WindowActions::closeAll(pid);
        case Hotkey::minimize:
            return WindowActions::minimize(window);
        case Hotkey::maximize:
            return WindowActions::maximize(window);
        case Hotkey::hide:
            return onApplication(pid, &Workspace::hide);
        case Hotkey::hideOthers:
            return WindowActions::hideOthers(pid);
        case Hotkey::kill:
            return onApplication(pid, &Workspace::forceTerminate);
    }
    return false;
}

void run(Hotkey hotkey, const AXElement& window, Pid pid) {
    WindowAttribute::setTimeout(window, WindowAttribute::actionTimeout);
    const std::string title = AX::string(window, WindowAttribute::title).value_or(std::string());
    const bool ok = perform(hotkey, window, pid);
    Log::info(std::string(ok ? "did" : "FAILED to") + " " + std::string(logName(hotkey)) +
              " (pid " + std::to_string(pid) + ", \"" + title + "\") using hot key");
}

}  // namespace

std::shared_ptr<SerialQueue> WindowActions::queue() {
    static LazyQueue queue(std::string(queueLabel), QualityOfService::userInitiated);
    return queue.get();
}

void WindowActions::perform(const AXElement& window, Pid pid, Hotkey hotkey) {
    queue()->async([window, pid, hotkey] { run(hotkey, window, pid); });
}

bool WindowActions::closeAll(Pid pid) {
    const AXElement app = platform().accessibility.application(pid);
    WindowAttribute::setTimeout(app, WindowAttribute::actionTimeout);
    bool pressed = false;
    for (const AXElement& window :
         AX::elements(app, WindowAttribute::windows, WindowAttribute::actionTimeout)) {
        // A failed press leaves that window open but must not spare the others.
        if (close(window)) pressed = true;
    }
    return pressed;
}

bool WindowActions::minimize(const AXElement& window) {
    for (int attempt = 0; attempt < minimizeAttempts; ++attempt) {
        if (!WindowAttribute::write(window, AX::minimized, true)) {
            // Some applications refuse the attribute but honour their own button.
            pressButton(window, AX::minimizeButton);
        }
        sleep(minimizeSettle);
        if (readsTrue(window, AX::minimized)) return true;
        sleep(minimizeRetryPause);
    }
    return false;
}

bool WindowActions::maximize(const AXElement& window) {
    if (fills()) return fillScreen(window);
    const bool was = readsTrue(window, AX::fullScreen);
    leaveMissionControl();
    sleep(missionControlExit);
    if (WindowAttribute::write(window, AX::fullScreen, !was) && changed(window, was)) {
        return true;
    }
    return pressButton(window, AX::fullScreenButton);
}

bool WindowActions::fillScreen(const AXElement& window) {
    const auto frame = WindowMover::frame(window);
    if (!frame) return false;
    std::optional<Rect> target;
    platform().executor.main().sync([&] { target = fillTarget(*frame); });
    if (!target) return false;
    auto& remembered = previousFrames();
    const std::size_t key = window.hash();
    Rect next = *target;
    const auto previous = remembered.find(key);
    if (near(*frame, *target) && previous != remembered.end()) {
        next = previous->second;
        remembered.erase(previous);
    } else {
        remembered[key] = *frame;
    }
    return WindowMover::writeFrame(window, next);
}

bool WindowActions::hideOthers(Pid keep) {
    Workspace& workspace = platform().workspace;
    const Pid ownPid = workspace.ownPid();
    int hidden = 0;
    for (const RunningApplication& app : workspace.runningApplications()) {
        if (app.activationPolicy != ActivationPolicy::regular) continue;
        if (app.pid == keep || app.pid == ownPid) continue;
        workspace.hide(app.pid);
        ++hidden;
    }
    return hidden > 0;
}

}  // namespace vistrel
