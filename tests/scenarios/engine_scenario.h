#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_dock.h"
#include "platform/sim/sim_scene.h"
#include "session/engine.h"

namespace vistrel::testing {

// The agent's engine on the default scene, in virtual time: a test opens Mission Control,
// moves the pointer, clicks and types, and looks at the desktop and the log.
class EngineScenario : public ::testing::Test {
  protected:
    EngineScenario();
    // The engine with a Layouts feature of the test's own instead of the real controller.
    explicit EngineScenario(std::unique_ptr<EngineLayouts> layouts);
    // On the scene `populate` sets up instead of the default one.
    using Populate = void (*)(SimDesktop&);
    explicit EngineScenario(Populate populate, std::unique_ptr<EngineLayouts> layouts = nullptr);

    // Opens Mission Control and lets the detector notice it and read the thumbnails.
    void openMissionControl();
    void closeMissionControl();
    // One detector tick in virtual time (the open-state pace), with everything it starts.
    void tick();
    // Delivers an event and runs the work it starts; answers whether it passed on.
    bool move(Point point);
    bool press(Point point, std::uint64_t flags = 0);
    bool release(Point point);
    bool key(std::int64_t code, std::uint64_t flags, bool autorepeat = false);
    bool keyUp(std::int64_t code);
    // One poll of the detector `seconds` from now while the hover queue waits: its timer on
    // the main thread, its read on its own queue (where macOS 27's tree is read), and what
    // it tells the main thread.
    void pollWhileHoverWaits(double seconds);
    // Runs the queues until nothing is pending.
    void settle() { desktop.executor().runUntilIdle(); }

    // The thumbnail of the window with this title, and the window itself.
    Rect thumbOf(const std::string& title);
    // The thumbnail Mission Control shows for a window, read from the simulated Dock.
    Rect thumbOfWindow(SimWindowId id);
    SimWindowId windowTitled(const std::string& title);
    // The middle of a thumbnail, clear of its scaled title bar.
    Point inside(Rect thumb) const { return {thumb.midX(), thumb.midY()}; }
    // The centre of the strip button of a kind, when the strip shows it.
    std::optional<Point> buttonCentre(OverlayButton kind) const;
    // The window the engine targets once the pointer came to rest over a window's
    // thumbnail; nothing when it targets none. Any other window fails the test.
    std::optional<SimWindowId> targetOver(SimWindowId id);
    std::size_t logged(std::string_view message) { return desktop.systemLog().count(message); }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    std::shared_ptr<Engine> engine;
};

}  // namespace vistrel::testing
