#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "platform/sim/cairo_canvas.h"
#include "reference_image.h"
#include "views/overlay_view.h"

namespace vistrel {
namespace {

// One sheet per theme: a row per button size (small, medium, large from the top), and in
// each row close, minimize and maximize, each plain and then hovered.
constexpr std::array<double, 3> buttonSizes = {20, 25, 32};
constexpr double cellPitch = 44;
constexpr double sheetScale = 2;  // rendered as on a Retina display
const Color backdrop = *Color::fromHex("#3B4050");

Size sheetSize() {
    return {cellPitch * allOverlayButtons.size() * 2, cellPitch * buttonSizes.size()};
}

std::shared_ptr<const DisplayList> sheet(Theme theme) {
    const Size size = sheetSize();
    RecordingCanvas canvas;  // not flipped: y up, as the overlay view draws
    canvas.fill(Path::rect({0, 0, size.width, size.height}), backdrop);
    for (std::size_t row = 0; row < buttonSizes.size(); ++row) {
        const double side = buttonSizes[row];
        const double centreY = size.height - (static_cast<double>(row) + 0.5) * cellPitch;
        double centreX = cellPitch / 2;
        for (OverlayButton button : allOverlayButtons) {
            for (bool hovered : {false, true}) {
                const Rect rect{centreX - side / 2, centreY - side / 2, side, side};
                OverlayView::drawButton(canvas, rect, theme.look(button), button, hovered);
                centreX += cellPitch;
            }
        }
    }
    return canvas.finish();
}

class OverlayReferenceTest : public ::testing::TestWithParam<Theme> {};

TEST_P(OverlayReferenceTest, ButtonsOfEverySizePlainAndHoveredMatchTheReferenceSheet) {
    CairoFonts fonts;
    const CairoSurface rendered =
        renderDisplayList(*sheet(GetParam()), sheetSize(), sheetScale, fonts);
    EXPECT_TRUE(
        matchesReference(rendered, "overlay_buttons_" + std::string(GetParam().rawValue())));
}

INSTANTIATE_TEST_SUITE_P(EveryTheme, OverlayReferenceTest, ::testing::ValuesIn(allThemes),
                         [](const auto& info) { return std::string(info.param.rawValue()); });

// The comparison itself must notice a changed drawing.
TEST(OverlayReference, ASheetOfAnotherThemeDoesNotMatch) {
    CairoFonts fonts;
    const CairoSurface soft =
        renderDisplayList(*sheet(Theme::soft), sheetSize(), sheetScale, fonts);
    if (std::getenv("VISTREL_UPDATE_REFERENCE") != nullptr) GTEST_SKIP() << "updating references";
    EXPECT_FALSE(matchesReference(soft, "overlay_buttons_classic"));
}

// The pixels at a button's centre and corner: face colour inside, backdrop outside.
TEST(OverlayReference, ButtonFaceIsRoundAndFilledWithTheThemeColour) {
    CairoFonts fonts;
    RecordingCanvas canvas;
    canvas.fill(Path::rect({0, 0, 40, 40}), backdrop);
    OverlayView::drawButton(canvas, {10, 10, 20, 20},
                            Theme(Theme::classic).look(OverlayButton::close),
                            OverlayButton::minimize, false);
    const CairoSurface pixels = renderDisplayList(*canvas.finish(), {40, 40}, 1, fonts);
    // Above the bar, inside the face: the close red of the classic theme (#EC4640).
    EXPECT_EQ(pixels.pixel(20, 14), (std::array<std::uint8_t, 4>{0xEC, 0x46, 0x40, 0xFF}));
    // The rect's corner lies outside the circle.
    EXPECT_EQ(pixels.pixel(11, 11), (std::array<std::uint8_t, 4>{0x3B, 0x40, 0x50, 0xFF}));
}

}  // namespace
}  // namespace vistrel
