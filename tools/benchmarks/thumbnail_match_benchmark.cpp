#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "tracking/thumbnail_match.h"

namespace vistrel {
namespace {

constexpr int thumbnailCount = 60;
constexpr int windowCount = 200;
constexpr int applicationCount = 12;
constexpr double thumbnailScale = 0.25;

// Windows of a dozen applications in a few sizes, each title a prefix-free number, as a
// crowded desktop might show them; the thumbnails show every third of them.
struct Crowd {
    Crowd() {
        for (int i = 0; i < windowCount; ++i) {
            const double width = 600 + 37 * (i % 9);
            const double height = 400 + 23 * (i % 7);
            windows.push_back({"Document " + std::to_string(1000 + i) + " - Editor",
                               "com.example.app" + std::to_string(i % applicationCount),
                               {double(i % 40) * 10, double(i % 30) * 10, width, height}});
        }
        for (int i = 0; i < thumbnailCount; ++i) {
            const ThumbnailMatch::Window& shown = windows[static_cast<std::size_t>(i * 3)];
            thumbnails.push_back(
                {"Document " + std::to_string(1000 + i * 3),
                 shown.bundleIdentifier,
                 {0, 0, shown.frame.width * thumbnailScale, shown.frame.height * thumbnailScale},
                 std::nullopt});
        }
    }
    std::vector<ThumbnailMatch::Window> windows;
    std::vector<ThumbnailMatch::Thumbnail> thumbnails;
};

// What one opening costs on the hover queue once the windows are enumerated: every
// thumbnail tied to its window (an equal title missing, so each goes on to the prefix).
void BM_TieSixtyThumbnailsToTwoHundredWindows(benchmark::State& state) {
    const Crowd crowd;
    for (auto _ : state) {
        int tied = 0;
        for (const auto& thumbnail : crowd.thumbnails) {
            if (ThumbnailMatch::fit(thumbnail, crowd.windows).window) ++tied;
        }
        if (tied != thumbnailCount) state.SkipWithError("a thumbnail was not tied");
        benchmark::DoNotOptimize(tied);
    }
}
BENCHMARK(BM_TieSixtyThumbnailsToTwoHundredWindows)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vistrel
