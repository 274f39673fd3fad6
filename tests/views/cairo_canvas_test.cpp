#include "platform/sim/cairo_canvas.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/sim/sim_desktop.h"

namespace vistrel {
namespace {

using Rgba = std::array<std::uint8_t, 4>;
constexpr Rgba red = {255, 0, 0, 255};
constexpr Rgba blue = {0, 0, 255, 255};
constexpr Rgba transparent = {0, 0, 0, 0};

class CairoCanvasTest : public ::testing::Test {
  protected:
    CairoSurface render(const DisplayList& list, Size size = {20, 20}) {
        return renderDisplayList(list, size, 1, fonts);
    }

    // How many pixels of a surface carry any ink.
    static int inked(const CairoSurface& surface, Rect area) {
        int count = 0;
        for (int y = static_cast<int>(area.minY()); y < static_cast<int>(area.maxY()); ++y) {
            for (int x = static_cast<int>(area.minX()); x < static_cast<int>(area.maxX()); ++x) {
                count += surface.pixel(x, y)[3] > 0;
            }
        }
        return count;
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    CairoFonts fonts;
};

TEST_F(CairoCanvasTest, AnUnflippedListHasItsOriginAtTheBottomLeft) {
    RecordingCanvas canvas(false);
    canvas.fill(Path::rect({0, 0, 5, 5}), Color{1, 0, 0, 1});
    const CairoSurface pixels = render(*canvas.finish());
    EXPECT_EQ(pixels.pixel(2, 17), red);
    EXPECT_EQ(pixels.pixel(2, 2), transparent);
}

TEST_F(CairoCanvasTest, AFlippedListHasItsOriginAtTheTopLeft) {
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({0, 0, 5, 5}), Color{1, 0, 0, 1});
    const CairoSurface pixels = render(*canvas.finish());
    EXPECT_EQ(pixels.pixel(2, 2), red);
    EXPECT_EQ(pixels.pixel(2, 17), transparent);
}

TEST_F(CairoCanvasTest, ImagesComeOutUprightWhicheverWayTheListRuns) {
    // A 1×2 bitmap: red on top, blue below.
    auto image = std::make_shared<Image>(Image{1, 2, {255, 0, 0, 255, 0, 0, 255, 255}});
    for (bool flipped : {false, true}) {
        RecordingCanvas canvas(flipped);
        canvas.drawImage(image, {0, 0, 20, 20});
        const CairoSurface pixels = render(*canvas.finish());
        EXPECT_EQ(pixels.pixel(10, 2), red) << "flipped " << flipped;
        EXPECT_EQ(pixels.pixel(10, 17), blue) << "flipped " << flipped;
    }
}

TEST_F(CairoCanvasTest, ABitmapWhosePixelsDoNotMatchItsSizeIsNotDrawn) {
    auto broken = std::make_shared<Image>(Image{4, 4, {255, 0, 0, 255}});
    RecordingCanvas canvas;
    canvas.drawImage(broken, {0, 0, 20, 20});
    canvas.drawImage(nullptr, {0, 0, 20, 20});
    EXPECT_EQ(inked(render(*canvas.finish()), {0, 0, 20, 20}), 0);
}

TEST_F(CairoCanvasTest, TextStandsUprightOnItsBaselineInAnUnflippedList) {
    RecordingCanvas canvas(false);
    canvas.drawText({"HHH", Font::named(FontName::instrumentSans, 16), Color::black(), 0}, {2, 10});
    const CairoSurface pixels = render(*canvas.finish(), {60, 40});
    // Baseline 10 points up from the bottom: row 30. Capitals rise above it, not below.
    EXPECT_GT(inked(pixels, {0, 18, 60, 12}), 20);
    EXPECT_EQ(inked(pixels, {0, 31, 60, 9}), 0);
}

TEST_F(CairoCanvasTest, TextSitsOnItsBaselineInAFlippedList) {
    RecordingCanvas canvas(true);
    canvas.drawText({"HHH", Font::named(FontName::geistMono, 16), Color::black(), 0}, {2, 20});
    const CairoSurface pixels = render(*canvas.finish(), {60, 40});
    EXPECT_GT(inked(pixels, {0, 8, 60, 12}), 20);
    EXPECT_EQ(inked(pixels, {0, 21, 60, 19}), 0);
}

TEST_F(CairoCanvasTest, LetterSpacingAddsTheKernAfterEveryCharacter) {
    CairoSurface scratch(1, 1);
    cairo_t* cr = cairo_create(scratch.get());
    CairoCanvas canvas(cr, fonts, false);
    TextRun run{"LAYOUTS", Font::named(FontName::geistMono, 11), Color::black(), 0};
    const double plain = canvas.textWidth(run);
    run.kern = 1.4;
    const double spaced = canvas.textWidth(run);
    cairo_destroy(cr);
    EXPECT_GT(plain, 0);
    EXPECT_NEAR(spaced - plain, 7 * 1.4, 1e-6);
}

TEST_F(CairoCanvasTest, ClippingKeepsFillsInsideTheClipUntilRestored) {
    RecordingCanvas canvas(true);
    canvas.save();
    canvas.clip(Path::rect({0, 0, 10, 20}));
    canvas.fill(Path::rect({0, 0, 20, 10}), Color{1, 0, 0, 1});
    canvas.restore();
    canvas.fill(Path::rect({0, 10, 20, 10}), Color{0, 0, 1, 1});
    const CairoSurface pixels = render(*canvas.finish());
    EXPECT_EQ(pixels.pixel(5, 5), red);
    EXPECT_EQ(pixels.pixel(15, 5), transparent);
    EXPECT_EQ(pixels.pixel(15, 15), blue);
}

TEST_F(CairoCanvasTest, TranslucentColoursBlendOverWhatIsBelow) {
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({0, 0, 20, 20}), Color::white());
    canvas.fill(Path::rect({0, 0, 20, 20}), Color::black().withAlpha(0.5));
    const auto pixel = render(*canvas.finish()).pixel(10, 10);
    EXPECT_NEAR(pixel[0], 128, 1);
    EXPECT_EQ(pixel[3], 255);
}

TEST_F(CairoCanvasTest, StrokesFollowTheirWidth) {
    RecordingCanvas canvas(true);
    canvas.stroke(Path().moveTo({0, 10}).lineTo({20, 10}), Color{0, 0, 1, 1},
                  StrokeStyle{4, LineCap::butt, LineJoin::miter});
    const CairoSurface pixels = render(*canvas.finish());
    EXPECT_EQ(pixels.pixel(10, 8), blue);
    EXPECT_EQ(pixels.pixel(10, 11), blue);
    EXPECT_EQ(pixels.pixel(10, 6), transparent);
    EXPECT_EQ(pixels.pixel(10, 13), transparent);
}

TEST_F(CairoCanvasTest, BundledFontsLoadWithoutALogLine) {
    fonts.face(Font::named(FontName::geistMono, 12));
    fonts.face(Font::named(FontName::instrumentSans, 12));
    fonts.face(Font::system(12));
    EXPECT_TRUE(desktop.systemLog().messages().empty());
}

TEST_F(CairoCanvasTest, AMissingFontFileIsLoggedOnceAndTextStillDraws) {
    CairoFonts missing(std::filesystem::temp_directory_path() / "vistrel-no-fonts-here");
    const Font font = Font::named(FontName::geistMono, 16);
    EXPECT_NE(missing.face(font), nullptr);
    EXPECT_NE(missing.face(font), nullptr);
    const std::string line =
        "sim: font GeistMono-Medium.ttf could not be loaded, drawing its text in the system font";
    EXPECT_EQ(desktop.systemLog().count(line), 1u);

    RecordingCanvas canvas(true);
    canvas.drawText({"Vistrel", font, Color::black(), 0}, {2, 20});
    const CairoSurface pixels = renderDisplayList(*canvas.finish(), {80, 30}, 1, missing);
    EXPECT_GT(inked(pixels, {0, 0, 80, 30}), 20);
}

TEST_F(CairoCanvasTest, SurfacesSurviveAPngRoundTrip) {
    CairoSurface original(3, 2);
    original.setPixel(0, 0, red);
    original.setPixel(2, 1, {10, 200, 30, 128});
    const auto path = std::filesystem::temp_directory_path() / "vistrel-roundtrip.png";
    ASSERT_TRUE(original.writePng(path));
    const auto read = CairoSurface::readPng(path);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pixel(0, 0), red);
    const auto translucent = read->pixel(2, 1);
    EXPECT_NEAR(translucent[1], 200, 2);
    EXPECT_EQ(translucent[3], 128);
    std::filesystem::remove(path);
}

TEST_F(CairoCanvasTest, PixelsOutsideASurfaceReadAsTransparentAndIgnoreWrites) {
    CairoSurface surface(2, 2);
    surface.setPixel(5, -1, red);
    EXPECT_EQ(surface.pixel(2, 0), transparent);
    EXPECT_EQ(surface.pixel(-1, 1), transparent);
}

TEST_F(CairoCanvasTest, ReadingAMissingPngGivesNothing) {
    EXPECT_FALSE(CairoSurface::readPng("/nonexistent/vistrel.png"));
}

}  // namespace
}  // namespace vistrel
