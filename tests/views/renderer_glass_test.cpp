#include <gtest/gtest.h>

#include <cmath>

#include "platform/display_list.h"
#include "platform/sim/cairo_glass.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_screen_renderer.h"

namespace vistrel {
namespace {

using Rgba = std::array<std::uint8_t, 4>;

constexpr double screenHeight = 900;
// A backdrop of the agent's own, low enough to lie under the glass: white on the left of
// x 700, black on the right, across the middle of the screen (screen coordinates, y down).
constexpr Rect backdrop{100, 200, 1200, 500};
constexpr double edgeX = 700;
// The glass window, over the edge between white and black.
constexpr Rect glassFrame{500, 300, 400, 300};
constexpr double glassRadius = 18;
constexpr int backdropLevel = 1;
constexpr int glassLevel = 999;

Rect inAppKit(Rect rect) {
    return {rect.x, screenHeight - rect.maxY(), rect.width, rect.height};
}

std::shared_ptr<const DisplayList> halves(Size size, double split) {
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({0, 0, split, size.height}), Color::white());
    canvas.fill(Path::rect({split, 0, size.width - split, size.height}), Color::black());
    return canvas.finish();
}

class RendererGlassTest : public ::testing::Test {
  protected:
    RendererGlassTest() {
        under->setFrame(inAppKit(backdrop), true);
        under->setLevel(backdropLevel);
        under->setContent(halves(backdrop.size(), edgeX - backdrop.x));
        under->orderFrontRegardless();
        glass->setFrame(inAppKit(glassFrame), true);
        glass->setLevel(glassLevel);
        glass->setContent(RecordingCanvas(true).finish());
        glass->setGlass(glassRadius);
        glass->orderFrontRegardless();
    }

    CairoSurface render() {
        SimScreenScene scene;
        scene.scale = 1;
        return renderer.render(scene);
    }

    static Rgba pixel(const CairoSurface& surface, Point point) {
        return surface.pixel(static_cast<int>(point.x), static_cast<int>(point.y));
    }

    Rgba at(Point point) { return pixel(render(), point); }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    SimScreenRenderer renderer{desktop};
    std::unique_ptr<AgentWindow> under = desktop.windowHost().makeWindow(WindowDeferral::deferred);
    std::unique_ptr<AgentWindow> glass = desktop.windowHost().makeWindow(WindowDeferral::deferred);
};

// Far from any edge the blur has nothing to mix: white under the veil alone.
TEST_F(RendererGlassTest, GlassDarkensWhatLiesBeneathWithItsVeil) {
    const double veiled =
        255 * (1 - CairoGlass::veilAlpha) + 255 * CairoGlass::veilGrey * CairoGlass::veilAlpha;
    const Rgba pixel = at({530, 450});
    EXPECT_NEAR(pixel[0], veiled, 3);
    EXPECT_EQ(pixel[0], pixel[2]);  // grey stays grey
}

TEST_F(RendererGlassTest, GlassBlursTheEdgeBeneathIt) {
    // Just either side of the edge, white and black are mixed; further off, they are not.
    const CairoSurface screen = render();
    const int nearWhite = pixel(screen, {edgeX - 3, 450})[0];
    const int farWhite = pixel(screen, {edgeX - 120, 450})[0];
    const int nearBlack = pixel(screen, {edgeX + 3, 450})[0];
    const int farBlack = pixel(screen, {edgeX + 120, 450})[0];
    EXPECT_LT(nearWhite, farWhite - 10);
    EXPECT_GT(nearBlack, farBlack + 10);
    EXPECT_LT(std::abs(nearWhite - nearBlack), 10);
}

TEST_F(RendererGlassTest, TheGlassCornersAreRoundedAndLeaveTheBackdropThere) {
    const CairoSurface screen = render();
    // The window's top-left pixel lies outside the rounded corner: plain white.
    EXPECT_EQ(pixel(screen, {glassFrame.x + 1, glassFrame.y + 1}), (Rgba{255, 255, 255, 255}));
    // Along the top edge, away from the corner, the glass is there.
    EXPECT_LT(pixel(screen, {glassFrame.x + 60, glassFrame.y + 1})[0], 200);
}

TEST_F(RendererGlassTest, TheWindowsContentIsDrawnOverItsGlass) {
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({100, 100, 50, 50}), Color{1, 0, 0, 1});
    glass->setContent(canvas.finish());
    EXPECT_EQ(at({glassFrame.x + 120, glassFrame.y + 120}), (Rgba{255, 0, 0, 255}));
}

TEST_F(RendererGlassTest, AWindowWithoutGlassLeavesTheEdgeSharp) {
    const auto plain = desktop.windowHost().makeWindow(WindowDeferral::deferred);
    glass->orderOut();
    plain->setFrame(inAppKit(glassFrame), true);
    plain->setContent(RecordingCanvas(true).finish());
    plain->orderFrontRegardless();
    EXPECT_EQ(at({edgeX - 1, 450}), (Rgba{255, 255, 255, 255}));
    EXPECT_EQ(at({edgeX + 1, 450}), (Rgba{0, 0, 0, 255}));
}

TEST_F(RendererGlassTest, HiddenGlassIsNotDrawn) {
    glass->orderOut();
    EXPECT_EQ(at({530, 450}), (Rgba{255, 255, 255, 255}));
}

TEST_F(RendererGlassTest, GlassFadesWithItsWindow) {
    glass->setAlpha(0);
    EXPECT_EQ(at({530, 450}), (Rgba{255, 255, 255, 255}));
}

TEST_F(RendererGlassTest, GlassAtTheScreensEdgeBlursWhatIsOnScreen) {
    glass->setFrame(inAppKit({-40, 860, 200, 100}), true);
    const Rgba pixel = at({20, 880});
    EXPECT_EQ(pixel[3], 255);
    EXPECT_LT(pixel[0], 200);
}

}  // namespace
}  // namespace vistrel
