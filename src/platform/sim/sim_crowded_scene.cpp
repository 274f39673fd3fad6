#include "platform/sim/sim_crowded_scene.h"

#include <string>
#include <vector>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

constexpr std::size_t windowsPerApplication = 10;
constexpr Size screenSize{simPrimaryScreen.width, simPrimaryScreen.height};
constexpr Size windowSize{640, 420};
// Each window on a screen sits this much below and to the right of the one before, and
// the cascade starts again at the top once it would leave the screen.
constexpr double cascadeStep = 24;
constexpr std::size_t cascadeLength = 16;
constexpr double cascadeTop = simMenuBarHeight + 10;

Rect cascaded(Rect screen, std::size_t place) {
    const double step = cascadeStep * static_cast<double>(place % cascadeLength);
    return {screen.x + 20 + step, screen.y + cascadeTop + step, windowSize.width,
            windowSize.height};
}

}  // namespace

void populateCrowdedScene(SimDesktop& desktop, std::size_t screens, std::size_t windows) {
    desktop.dock().launch();
    for (std::size_t s = 1; s < screens; ++s)
        desktop.addScreenToTheRight(screenSize);
    const std::vector<Rect> frames = desktop.accessibilityScreenFrames();

    Pid pid = 0;
    std::vector<std::size_t> placed(frames.size(), 0);
    for (std::size_t w = 0; w < windows; ++w) {
        const std::size_t number = w / windowsPerApplication + 1;
        if (w % windowsPerApplication == 0) {
            SimApplication application;
            application.bundleIdentifier = "com.example.crowd" + std::to_string(number);
            application.name = "Crowd " + std::to_string(number);
            pid = desktop.addApplication(std::move(application));
        }
        const std::size_t screen = w % frames.size();
        SimWindow window;
        window.title = "Window " + std::to_string(w + 1);
        window.frame = cascaded(frames[screen], placed[screen]++);
        desktop.addWindow(pid, std::move(window));
    }
}

}  // namespace vistrel
