#include "platform/sim/sim_screen_renderer.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "platform/sim/sim_desktop.h"

namespace vistrel {
namespace {

using Rgba = std::array<std::uint8_t, 4>;

std::shared_ptr<const DisplayList> solid(Color color, Size size) {
    RecordingCanvas canvas;
    canvas.fill(Path::rect({0, 0, size.width, size.height}), color);
    return canvas.finish();
}

// The screen at one pixel per point, as the tests' coordinates read.
SimScreenScene plain() {
    SimScreenScene scene;
    scene.scale = 1;
    return scene;
}

class SimScreenRendererTest : public ::testing::Test {
  protected:
    // A window of the agent showing one colour, frame in AppKit coordinates.
    std::unique_ptr<AgentWindow> agentWindow(Rect frame, Color color, int level) {
        auto window = desktop.windowHost().makeWindow(WindowDeferral::deferred);
        window->setFrame(frame, true);
        window->setLevel(level);
        window->setContent(solid(color, frame.size()));
        window->orderFrontRegardless();
        return window;
    }

    Rgba pixelAt(const CairoSurface& surface, Point point, double scale = 1) {
        return surface.pixel(static_cast<int>(point.x * scale), static_cast<int>(point.y * scale));
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    SimScreenRenderer renderer{desktop};
};

TEST_F(SimScreenRendererTest, RendersTheWholePrimaryScreenAtTheScale) {
    const CairoSurface retina = renderer.render({});
    EXPECT_EQ(retina.width(), 2880);
    EXPECT_EQ(retina.height(), 1800);
    const CairoSurface single = renderer.render(plain());
    EXPECT_EQ(single.width(), 1440);
    EXPECT_EQ(pixelAt(single, {700, 450})[3], 255);  // the wallpaper is opaque
}

TEST_F(SimScreenRendererTest, AgentWindowsAreDrawnAtTheirAppKitFrameFlippedOntoTheScreen) {
    // 100 points up from the bottom of a 900-point screen: its top is at y 760 on screen.
    const auto window = agentWindow({50, 100, 40, 40}, Color{1, 0, 0, 1}, 1000);
    const CairoSurface pixels = renderer.render(plain());
    EXPECT_EQ(pixelAt(pixels, {70, 780}), (Rgba{255, 0, 0, 255}));
    EXPECT_NE(pixelAt(pixels, {70, 120}), (Rgba{255, 0, 0, 255}));
    EXPECT_NE(pixelAt(pixels, {70, 755}), (Rgba{255, 0, 0, 255}));
}

TEST_F(SimScreenRendererTest, AgentWindowContentIsClippedToItsFrame) {
    auto window = desktop.windowHost().makeWindow(WindowDeferral::deferred);
    window->setFrame({50, 100, 40, 40}, true);
    window->setContent(solid(Color{1, 0, 0, 1}, {400, 400}));
    window->orderFrontRegardless();
    const CairoSurface pixels = renderer.render(plain());
    EXPECT_NE(pixelAt(pixels, {100, 780}), (Rgba{255, 0, 0, 255}));
}

TEST_F(SimScreenRendererTest, HiddenAgentWindowsAreNotDrawn) {
    const auto window = agentWindow({50, 100, 40, 40}, Color{1, 0, 0, 1}, 1000);
    window->orderOut();
    const CairoSurface pixels = renderer.render(plain());
    EXPECT_NE(pixelAt(pixels, {70, 780}), (Rgba{255, 0, 0, 255}));
}

TEST_F(SimScreenRendererTest, HigherLevelsAreDrawnOverLowerOnesWhateverTheirOrder) {
    const auto top = agentWindow({50, 100, 40, 40}, Color{0, 0, 1, 1}, 1002);
    const auto bottom = agentWindow({50, 100, 40, 40}, Color{1, 0, 0, 1}, 999);
    const CairoSurface pixels = renderer.render(plain());
    EXPECT_EQ(pixelAt(pixels, {70, 780}), (Rgba{0, 0, 255, 255}));
}

TEST_F(SimScreenRendererTest, AgentWindowsAreDrawnWithTheirAlpha) {
    const auto window = agentWindow({50, 100, 40, 40}, Color::white(), 1000);
    const Rgba without = pixelAt(renderer.render(plain()), {70, 780});
    window->setAlpha(0.5);
    const Rgba with = pixelAt(renderer.render(plain()), {70, 780});
    EXPECT_EQ(without, (Rgba{255, 255, 255, 255}));
    EXPECT_LT(with[0], 240);
    EXPECT_GT(with[0], without[0] / 2 - 1);
}

TEST_F(SimScreenRendererTest, MissionControlDrawsTheThumbnailsInsteadOfTheWindows) {
    SimApplication notes;
    notes.bundleIdentifier = "com.example.notes";
    notes.name = "Notes";
    const Pid pid = desktop.addApplication(notes);
    SimWindow window;
    window.title = "Notes";
    window.frame = {300, 200, 600, 400};
    const SimWindowId id = desktop.addWindow(pid, window);
    SimScreenScene mc = plain();
    mc.missionControl = true;
    mc.thumbnails = {{{100, 150, 300, 200}, "Notes", id, true}};
    const CairoSurface desk = renderer.render(plain());
    const CairoSurface mission = renderer.render(mc);
    // Where the window's body is on the desktop, Mission Control shows dimmed wallpaper.
    EXPECT_GT(pixelAt(desk, {800, 500})[0], 200);
    EXPECT_LT(pixelAt(mission, {800, 500})[0], 120);
    // The thumbnail shows the window's light body.
    EXPECT_GT(pixelAt(mission, {350, 320})[0], 200);
}

TEST_F(SimScreenRendererTest, WritesAPngThatReadsBack) {
    const auto path = std::filesystem::temp_directory_path() / "vistrel-screen" / "screen.png";
    ASSERT_TRUE(renderer.writePng(plain(), path));
    const auto read = CairoSurface::readPng(path);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width(), 1440);
    std::filesystem::remove_all(path.parent_path());
}

TEST_F(SimScreenRendererTest, AnUnwritablePathIsLoggedNotThrown) {
    EXPECT_FALSE(renderer.writePng(plain(), "/proc/vistrel/screen.png"));
    EXPECT_EQ(desktop.systemLog().count("sim: could not write /proc/vistrel/screen.png"), 1u);
}

}  // namespace
}  // namespace vistrel
