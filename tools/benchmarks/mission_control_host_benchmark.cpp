// One open/closed check and one thumbnail read on the simulated desktop with 60 thumbnails,
// where Mission Control lives in the Dock (macOS 26) and where it lives in WindowManager
// (macOS 27). Each run reports the accessibility calls and window-list queries one check
// or one read makes.
#include <benchmark/benchmark.h>

#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "tracking/mission_control_detector.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {
namespace {

constexpr int thumbnailCount = 60;

// Mission Control open over 60 windows on a system of the given major version.
struct SixtyThumbnails {
    explicit SixtyThumbnails(int major) {
        desktop.systemInfo().version = {major, 0, 0};
        desktop.dock().launch();
        SimApplication editor;
        editor.bundleIdentifier = "com.example.editor";
        editor.name = "Editor";
        const Pid pid = desktop.addApplication(std::move(editor));
        for (int i = 0; i < thumbnailCount; ++i) {
            SimWindow window;
            window.title = "Document " + std::to_string(i + 1);
            window.frame = {40.0 + 10 * (i % 30), 60.0 + 5 * (i % 40), 800, 500};
            desktop.addWindow(pid, window);
        }
        desktop.dock().otherDesktop = {{0x9001, "com.example.mail", "Inbox"}};
        desktop.dock().open();
    }

    // Per-iteration counts of what the last measured loop asked.
    void report(benchmark::State& state, int listsBefore) {
        const auto iterations = static_cast<double>(state.iterations());
        state.counters["ax_calls"] =
            static_cast<double>(desktop.accessibility().attributeReads()) / iterations;
        state.counters["window_lists"] =
            static_cast<double>(desktop.windowServer().listQueries() - listsBefore) / iterations;
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
};

void openClosedCheck(benchmark::State& state) {
    SixtyThumbnails scene(static_cast<int>(state.range(0)));
    scene.desktop.accessibility().resetCounts();
    const int lists = scene.desktop.windowServer().listQueries();
    for (auto _ : state)
        benchmark::DoNotOptimize(MissionControlDetector::isMissionControlOpen());
    scene.report(state, lists);
}
BENCHMARK(openClosedCheck)->ArgName("macOS")->Arg(26)->Arg(27);

void thumbnailRead(benchmark::State& state) {
    SixtyThumbnails scene(static_cast<int>(state.range(0)));
    ThumbnailReader reader;
    reader.frames();  // makes the cached application element, as the first read of a session
    scene.desktop.accessibility().resetCounts();
    const int lists = scene.desktop.windowServer().listQueries();
    for (auto _ : state) {
        const auto frames = reader.frames();
        if (frames.size() != thumbnailCount) state.SkipWithError("not every thumbnail was read");
        benchmark::DoNotOptimize(frames.data());
    }
    scene.report(state, lists);
}
BENCHMARK(thumbnailRead)->ArgName("macOS")->Arg(26)->Arg(27);

}  // namespace
}  // namespace vistrel
