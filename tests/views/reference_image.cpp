#include "reference_image.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace vistrel {

namespace {

namespace fs = std::filesystem;

// A channel may differ this much (of 255) before the pixel counts as different: enough for
// Cairo and pixman versions that round anti-aliased edges differently.
constexpr int channelTolerance = 16;
// This many differing pixels still pass; a missing or miscoloured glyph differs in far more.
constexpr int differingPixelsAllowed = 16;
constexpr std::array<std::uint8_t, 4> diffMark = {255, 0, 255, 255};
constexpr int diffFadeDivisor = 4;

bool updatingReferences() {
    const char* value = std::getenv("VISTREL_UPDATE_REFERENCE");
    return value != nullptr && std::string_view(value) == "1";
}

fs::path referencePath(const std::string& name) {
    return fs::path(VISTREL_TEST_DATA_DIR) / "views" / "reference" / (name + ".png");
}

// Next to the test executable, so that failures land in the build folder.
fs::path diffDirectory() {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    const fs::path base = error ? fs::temp_directory_path() : executable.parent_path();
    return base / "image-diffs";
}

int channelDifference(std::array<std::uint8_t, 4> a, std::array<std::uint8_t, 4> b) {
    int largest = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        largest = std::max(largest, std::abs(a[i] - b[i]));
    return largest;
}

// Differing pixels in magenta over a faded copy of the reference.
CairoSurface diffPicture(const CairoSurface& actual, const CairoSurface& reference,
                         int& differing) {
    CairoSurface diff(actual.width(), actual.height());
    differing = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const auto want = reference.pixel(x, y);
            if (channelDifference(actual.pixel(x, y), want) > channelTolerance) {
                ++differing;
                diff.setPixel(x, y, diffMark);
            } else {
                diff.setPixel(x, y,
                              {want[0], want[1], want[2],
                               static_cast<std::uint8_t>(want[3] / diffFadeDivisor)});
            }
        }
    }
    return diff;
}

std::string regenerateHint() {
    return "\n  to accept the new drawing: VISTREL_UPDATE_REFERENCE=1 "
           "vistrel_tests_views --gtest_filter='*Reference*', then review the PNGs";
}

}  // namespace

::testing::AssertionResult matchesReference(const CairoSurface& actual, const std::string& name) {
    const fs::path reference = referencePath(name);
    if (updatingReferences()) {
        if (!actual.writePng(reference)) {
            return ::testing::AssertionFailure() << "could not write " << reference;
        }
        return ::testing::AssertionSuccess() << "updated " << reference;
    }
    const fs::path actualPath = diffDirectory() / (name + ".actual.png");
    const auto expected = CairoSurface::readPng(reference);
    if (!expected) {
        actual.writePng(actualPath);
        return ::testing::AssertionFailure()
               << "reference " << reference << " is missing; the "
               << "rendered picture is " << actualPath << regenerateHint();
    }
    if (expected->width() != actual.width() || expected->height() != actual.height()) {
        actual.writePng(actualPath);
        return ::testing::AssertionFailure()
               << name << ": rendered " << actual.width() << "x" << actual.height()
               << " but the reference is " << expected->width() << "x" << expected->height()
               << "; rendered picture: " << actualPath << regenerateHint();
    }
    int differing = 0;
    const CairoSurface diff = diffPicture(actual, *expected, differing);
    if (differing <= differingPixelsAllowed) return ::testing::AssertionSuccess();
    const fs::path diffPath = diffDirectory() / (name + ".diff.png");
    actual.writePng(actualPath);
    diff.writePng(diffPath);
    return ::testing::AssertionFailure()
           << name << ": " << differing << " pixels differ from " << reference << " by more than "
           << channelTolerance << "/255 (" << differingPixelsAllowed << " allowed)"
           << "\n  rendered: " << actualPath << "\n  diff (magenta = different): " << diffPath
           << regenerateHint();
}

}  // namespace vistrel
