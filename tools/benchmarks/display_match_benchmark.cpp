#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "layouts/display_match.h"

namespace vistrel {
namespace {

constexpr int layoutCount = 100;
constexpr int displaySets = 10;

SavedLayout::Display display(int number, double x) {
    return {"DISPLAY-" + std::to_string(number), {x, 0, 1920, 1080}};
}

// A hundred saved layouts over ten sets of one to three displays, each with four windows.
std::vector<SavedLayout> hundredLayouts() {
    std::vector<SavedLayout> layouts;
    for (int i = 0; i < layoutCount; ++i) {
        SavedLayout layout;
        layout.name = "Layout " + std::to_string(i);
        layout.created = i;
        const int set = i % displaySets;
        for (int d = 0; d <= set % 3; ++d)
            layout.displays.push_back(display(set * 3 + d, 1920.0 * d));
        layout.windows.assign(4,
                              {"com.example.app", "App", "Window", {0, 0, 0.5, 1}, std::nullopt});
        layouts.push_back(std::move(layout));
    }
    return layouts;
}

// Choosing the layout for the displays just connected, among a hundred saved ones. The
// answer must come well under 100 µs.
void BM_ChooseTheLayoutForTheDisplays(benchmark::State& state) {
    const std::vector<SavedLayout> layouts = hundredLayouts();
    const std::vector<SavedLayout::Display> now = {display(27, 0), display(28, 1920),
                                                   display(29, 3840)};
    for (auto _ : state) {
        benchmark::DoNotOptimize(DisplayMatch::latestFor(layouts, now));
    }
}
BENCHMARK(BM_ChooseTheLayoutForTheDisplays)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vistrel
