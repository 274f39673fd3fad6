#include "engine_scenario.h"

#include "tracking/mission_control_detector.h"

namespace vistrel::testing {

EngineScenario::EngineScenario() : EngineScenario(populateDefaultScene) {}

EngineScenario::EngineScenario(std::unique_ptr<EngineLayouts> layouts)
    : EngineScenario(populateDefaultScene, std::move(layouts)) {}

EngineScenario::EngineScenario(Populate populate, std::unique_ptr<EngineLayouts> layouts) {
    populate(desktop);
    engine = layouts ? Engine::make(std::move(layouts)) : Engine::make();
    engine->start();
    desktop.executor().advance(MissionControlDetector::startDelay);
}

void EngineScenario::openMissionControl() {
    desktop.dock().open();
    desktop.executor().advance(MissionControlDetector::closedInterval);
}

void EngineScenario::closeMissionControl() {
    desktop.dock().close();
    desktop.executor().advance(MissionControlDetector::openInterval);
}

void EngineScenario::tick() {
    desktop.executor().advance(MissionControlDetector::openInterval);
}

void EngineScenario::pollWhileHoverWaits(double seconds) {
    desktop.executor().advanceMain(seconds);
    if (auto detector = desktop.executor().queue(std::string(MissionControlDetector::queueLabel))) {
        detector->drain();
    }
    desktop.executor().mainQueue().drain();
}

bool EngineScenario::move(Point point) {
    const bool passed = desktop.eventTap().deliver(SimInput::mouseMoved(point));
    settle();
    return passed;
}

bool EngineScenario::press(Point point, std::uint64_t flags) {
    const bool passed = desktop.eventTap().deliver(SimInput::mouseDown(point, flags));
    settle();
    return passed;
}

bool EngineScenario::release(Point point) {
    const bool passed = desktop.eventTap().deliver(SimInput::mouseUp(point));
    settle();
    return passed;
}

// A key is kept from the system only for an action, and every action leaves a line in the
// log: a press kept without one would be a key swallowed for nothing. A repeat is kept only
// with the press that began it, which had the action.
bool EngineScenario::key(std::int64_t code, std::uint64_t flags, bool autorepeat) {
    const std::size_t before = desktop.systemLog().lines().size();
    const bool passed = desktop.eventTap().deliver(SimInput::keyDown(code, flags, autorepeat));
    settle();
    if (!passed && !autorepeat) {
        EXPECT_GT(desktop.systemLog().lines().size(), before)
            << "key " << code << " was kept from the system without an action";
    }
    return passed;
}

bool EngineScenario::keyUp(std::int64_t code) {
    const bool passed = desktop.eventTap().deliver(SimInput::keyUp(code));
    settle();
    return passed;
}

Rect EngineScenario::thumbOfWindow(SimWindowId id) {
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        if (thumbnail.window == id) return thumbnail.frame;
    }
    ADD_FAILURE() << "no thumbnail for window " << id;
    return {};
}

SimWindowId EngineScenario::windowTitled(const std::string& title) {
    for (const SimWindow& window : desktop.windows()) {
        if (window.title == title) return window.id;
    }
    ADD_FAILURE() << "no window titled " << title;
    return 0;
}

Rect EngineScenario::thumbOf(const std::string& title) {
    const SimWindowId id = windowTitled(title);
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        if (thumbnail.window == id) return thumbnail.frame;
    }
    ADD_FAILURE() << "no thumbnail for " << title;
    return {};
}

std::optional<Point> EngineScenario::buttonCentre(OverlayButton kind) const {
    if (!engine->layout()) return std::nullopt;
    for (const auto& item : engine->layout()->items) {
        if (item.kind == kind) return item.rect.mid();
    }
    return std::nullopt;
}

std::optional<SimWindowId> EngineScenario::targetOver(SimWindowId id) {
    move({1, 1});
    move(inside(thumbOfWindow(id)));
    tick();
    settle();
    if (!engine->target()) return std::nullopt;
    for (const SimWindow& shown : desktop.windows()) {
        if (engine->target()->window == desktop.accessibility().windowElement(shown.id)) {
            EXPECT_EQ(shown.id, id) << "the strip acts on another window";
            return shown.id;
        }
    }
    ADD_FAILURE() << "the target is no window of the desktop";
    return std::nullopt;
}

}  // namespace vistrel::testing
