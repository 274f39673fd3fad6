#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr int iconPixels = 64;
// The icon lightens towards its top; near the bottom it is within this many levels of
// the application's colour.
constexpr int colourSlack = 16;

class SimIconTest : public testing::SimTest {
  protected:
    SimIconTest() { populateDefaultScene(desktop); }

    // Red, green and blue of one pixel, 0 to 255.
    static std::array<int, 3> pixel(const Image& image, int x, int y) {
        const std::size_t at = (static_cast<std::size_t>(y) * image.width + x) * 4;
        return {image.rgba[at], image.rgba[at + 1], image.rgba[at + 2]};
    }
};

TEST_F(SimIconTest, AnInstalledApplicationHasAValidSquareIconOfTheAskedSize) {
    const auto icon = desktop.workspace().applicationIcon("com.apple.Safari", iconPixels);

    ASSERT_NE(icon, nullptr);
    EXPECT_TRUE(icon->isValid());
    EXPECT_EQ(icon->width, iconPixels);
    EXPECT_EQ(icon->height, iconPixels);
}

TEST_F(SimIconTest, TheIconIsPaintedInTheApplicationsColour) {
    const auto icon = desktop.workspace().applicationIcon("com.apple.Safari", iconPixels);

    ASSERT_NE(icon, nullptr);
    // Safari's colour is 0x34C759; look low in the middle, below the ring.
    const auto [red, green, blue] = pixel(*icon, iconPixels / 2, iconPixels * 85 / 100);
    EXPECT_NEAR(red, 0x34, colourSlack);
    EXPECT_NEAR(green, 0xC7, colourSlack);
    EXPECT_NEAR(blue, 0x59, colourSlack);
}

TEST_F(SimIconTest, TheCornersOfTheIconAreTransparent) {
    const auto icon = desktop.workspace().applicationIcon("com.apple.Safari", iconPixels);

    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->rgba[3], 0);
}

TEST_F(SimIconTest, TwoApplicationsHaveIconsOfTheirOwnColours) {
    const auto safari = desktop.workspace().applicationIcon("com.apple.Safari", iconPixels);
    const auto notes = desktop.workspace().applicationIcon("com.apple.Notes", iconPixels);

    ASSERT_NE(safari, nullptr);
    ASSERT_NE(notes, nullptr);
    EXPECT_NE(safari->rgba, notes->rgba);
}

TEST_F(SimIconTest, AnApplicationThatIsNotInstalledHasNoIcon) {
    EXPECT_EQ(desktop.workspace().applicationIcon("com.example.absent", iconPixels), nullptr);
}

TEST_F(SimIconTest, AnIconOfNoPixelsIsNone) {
    EXPECT_EQ(desktop.workspace().applicationIcon("com.apple.Safari", 0), nullptr);
}

}  // namespace
}  // namespace vistrel
