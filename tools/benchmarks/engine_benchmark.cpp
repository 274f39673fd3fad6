#include <benchmark/benchmark.h>

#include <stdlib.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "allocation_counter.h"
#include "platform/sim/sim_crowded_scene.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_dock.h"
#include "platform/sim/sim_presentation.h"
#include "platform/sim/sim_scene.h"
#include "session/engine.h"
#include "tracking/mission_control_detector.h"

namespace vistrel {
namespace {

// The engine logs; its file log goes under HOME, so point HOME at a folder of its own.
void keepLogsAwayFromTheUsersHome() {
    static const bool done = [] {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "vistrel-benchmark-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr) setenv("HOME", pattern.c_str(), 1);
        return true;
    }();
    (void)done;
}

// The crowd the engine must still handle without a stutter.
constexpr std::size_t crowdScreens = 8;
constexpr std::size_t crowdWindows = 500;

// The crowd also as macOS 27 shows it without window numbers, where every hover goes
// through the windows tied to the thumbnails by title and shape.
enum class Scene { everyday, crowd, crowdUnnumbered };

void populate(SimDesktop& desktop, Scene scene) {
    if (scene == Scene::everyday) {
        populateDefaultScene(desktop);
        return;
    }
    populateCrowdedScene(desktop, crowdScreens, crowdWindows);
    if (scene == Scene::crowdUnnumbered) present(desktop, SimPresentation::unnumberedThumbnails);
}

// Mission Control open and the strip shown over the first thumbnail.
struct HoveredSession {
    explicit HoveredSession(Scene scene) {
        keepLogsAwayFromTheUsersHome();
        populate(desktop, scene);
        engine = Engine::make();
        engine->start();
        desktop.dock().open();
        desktop.executor().advance(MissionControlDetector::startDelay +
                                   MissionControlDetector::closedInterval);
        thumb = desktop.dock().thumbnails().front().frame;
        deliver(thumb.mid());
        desktop.executor().runUntilIdle();
    }

    // The tap's callback: it records the move and asks for a turn of the main queue.
    void deliver(Point point) { desktop.eventTap().deliver(SimInput::mouseMoved(point)); }
    // The main queue's turn that handles the move.
    void turn() { desktop.executor().mainQueue().runOne(); }

    // The main thread's whole share of a move, the callback and its turn, counting the heap
    // allocations made meanwhile.
    void moveCounted(Point point) {
        const benchmarks::AllocationScope scope;
        deliver(point);
        turn();
        allocations += scope.made();
    }

    // Reports the allocations counted as an average per move.
    void report(benchmark::State& state) const {
        state.counters["allocs/move"] = benchmark::Counter(static_cast<double>(allocations),
                                                           benchmark::Counter::kAvgIterations);
    }

    // Two points inside the hovered thumbnail, in turn, so no move repeats the last one.
    Point nextInThumbnail() {
        constexpr double offset = 5;
        flip = !flip;
        return {thumb.midX() + (flip ? offset : -offset), thumb.midY()};
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    std::shared_ptr<Engine> engine;
    Rect thumb;
    bool flip = false;
    std::uint64_t allocations = 0;
};

// Times `step` by hand for a move to each next point over the hovered thumbnail, then lets
// what it started run untimed: pausing the benchmark's own timer costs more than a move.
template <typename Step>
void timeEachMove(benchmark::State& state, HoveredSession& session, Step step) {
    for (auto _ : state) {
        const Point point = session.nextInThumbnail();
        const auto start = std::chrono::steady_clock::now();
        step(point);
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(took.count());
        session.desktop.executor().runUntilIdle();
    }
    benchmark::DoNotOptimize(session.engine->target());
}

// Main-thread cost of a pointer move over the hovered thumbnail: the tap callback and, on
// the next turn, the strip and safe-zone test and the hand-off of a hit-test to the hover
// queue, which is drained between moves.
void BM_PointerMoveOverHoveredThumbnail(benchmark::State& state, Scene scene) {
    HoveredSession session(scene);
    timeEachMove(state, session, [&](Point point) { session.moveCounted(point); });
    session.report(state);
}
BENCHMARK_CAPTURE(BM_PointerMoveOverHoveredThumbnail, everyday, Scene::everyday)->UseManualTime();
BENCHMARK_CAPTURE(BM_PointerMoveOverHoveredThumbnail, crowd, Scene::crowd)->UseManualTime();
BENCHMARK_CAPTURE(BM_PointerMoveOverHoveredThumbnail, crowdUnnumbered, Scene::crowdUnnumbered)
    ->UseManualTime();

// Main-thread cost of a pointer move along the strip: only the safe-zone test and the
// hovered button, no hit-test.
void BM_PointerMoveAlongTheStrip(benchmark::State& state, Scene scene) {
    HoveredSession session(scene);
    const Rect button = session.engine->layout()->items.front().rect;
    const Point a = button.mid();
    const Point b{button.midX() + 1, button.midY()};
    bool flip = false;
    for (auto _ : state) {
        session.moveCounted(flip ? a : b);
        flip = !flip;
    }
    benchmark::DoNotOptimize(session.engine->target());
    session.report(state);
}
BENCHMARK_CAPTURE(BM_PointerMoveAlongTheStrip, everyday, Scene::everyday);
BENCHMARK_CAPTURE(BM_PointerMoveAlongTheStrip, crowd, Scene::crowd);

// The event tap's callback alone, while the system holds its input: it only records the
// move. The turn that handles it runs afterwards, untimed.
void BM_TapCallbackForAPointerMove(benchmark::State& state, Scene scene) {
    HoveredSession session(scene);
    timeEachMove(state, session, [&](Point point) { session.deliver(point); });
}
BENCHMARK_CAPTURE(BM_TapCallbackForAPointerMove, everyday, Scene::everyday)->UseManualTime();
BENCHMARK_CAPTURE(BM_TapCallbackForAPointerMove, crowd, Scene::crowd)->UseManualTime();

// One hit-test round trip in the simulator: the move, the hit-test and button query on the
// hover queue, and the result applied on the main queue.
void BM_HitTestRoundTrip(benchmark::State& state, Scene scene) {
    HoveredSession session(scene);
    for (auto _ : state) {
        session.deliver(session.nextInThumbnail());
        session.desktop.executor().runUntilIdle();
    }
    benchmark::DoNotOptimize(session.engine->target());
}
BENCHMARK_CAPTURE(BM_HitTestRoundTrip, everyday, Scene::everyday);
BENCHMARK_CAPTURE(BM_HitTestRoundTrip, crowd, Scene::crowd);
BENCHMARK_CAPTURE(BM_HitTestRoundTrip, crowdUnnumbered, Scene::crowdUnnumbered);

}  // namespace
}  // namespace vistrel
