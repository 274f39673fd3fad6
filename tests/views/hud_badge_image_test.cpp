#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/display_list.h"
#include "platform/sim/cairo_canvas.h"
#include "reference_image.h"
#include "support/sim_test.h"
#include "views/badge_view.h"
#include "views/hud_view.h"

namespace vistrel {
namespace {

// Each picture shows one view on a dimmed backdrop, as over Mission Control, at 2x.
constexpr double margin = 12;
constexpr double pictureScale = 2;
const Color backdrop = *Color::fromHex("#4A5368");
constexpr Size badgeSize{34, 34};

// The view drawn `margin` points inside a backdrop around it.
template <typename View>
CairoSurface onBackdrop(const View& view, Size size) {
    const Size picture{size.width + 2 * margin, size.height + 2 * margin};
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect(Rect::of({}, picture)), backdrop);
    canvas.save();
    canvas.translate(margin, margin);
    view.draw(canvas, size);
    canvas.restore();
    CairoFonts fonts;
    return renderDisplayList(*canvas.finish(), picture, pictureScale, fonts);
}

CairoSurface hudPicture(const std::string& message, std::optional<UnitRect> unit) {
    HUDView view;
    view.configure(message, unit);
    return onBackdrop(view, HUDView::measure(message, unit.has_value()));
}

CairoSurface badgePicture(int number) {
    BadgeView view;
    view.configure(number);
    return onBackdrop(view, badgeSize);
}

using HUDBadgeReferenceTest = testing::SimTest;

TEST_F(HUDBadgeReferenceTest, HUDWithAMessageMatchesTheReference) {
    EXPECT_TRUE(
        matchesReference(hudPicture("Saved \u201CMorning\u201D", std::nullopt), "hud_message"));
}

TEST_F(HUDBadgeReferenceTest, HUDWithAMiniatureMatchesTheReference) {
    EXPECT_TRUE(matchesReference(hudPicture("Left Half", UnitRect{0, 0, 0.5, 1}), "hud_miniature"));
}

TEST_F(HUDBadgeReferenceTest, BadgeWithOneDigitMatchesTheReference) {
    EXPECT_TRUE(matchesReference(badgePicture(1), "badge_1"));
}

TEST_F(HUDBadgeReferenceTest, BadgeWithTwoDigitsMatchesTheReference) {
    EXPECT_TRUE(matchesReference(badgePicture(12), "badge_12"));
}

// The white pixels well inside the ring: the number's ink, in pixels of the picture.
struct Ink {
    int left = 0;
    int top = 0;
    int right = -1;
    int bottom = -1;

    double midX() const { return (left + right + 1) / 2.0; }
    double midY() const { return (top + bottom + 1) / 2.0; }
};

Ink numberInk(const CairoSurface& picture) {
    constexpr int bright = 200;
    constexpr double insideRing = 11;  // points from the centre, short of the ring
    const double centre = (margin + badgeSize.width / 2) * pictureScale;
    Ink ink{picture.width(), picture.height()};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const auto pixel = picture.pixel(x, y);
            const bool white = pixel[0] > bright && pixel[1] > bright && pixel[2] > bright;
            if (!white ||
                std::hypot(x + 0.5 - centre, y + 0.5 - centre) > insideRing * pictureScale) {
                continue;
            }
            ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x),
                   std::max(ink.bottom, y)};
        }
    }
    return ink;
}

TEST_F(HUDBadgeReferenceTest, NumbersOfOneAndTwoDigitsAreCentredInTheRenderedBadge) {
    const double centre = (margin + badgeSize.width / 2) * pictureScale;
    const double onePoint = pictureScale;
    for (int number : {1, 12}) {
        const Ink ink = numberInk(badgePicture(number));
        ASSERT_GT(ink.right, ink.left) << number << ": no number drawn";
        EXPECT_NEAR(ink.midX(), centre, onePoint) << number;
        EXPECT_NEAR(ink.midY(), centre, onePoint) << number;
    }
}

// The comparison must notice a different number.
TEST_F(HUDBadgeReferenceTest, BadgeWithAnotherNumberDoesNotMatch) {
    const CairoSurface two = badgePicture(2);
    if (std::getenv("VISTREL_UPDATE_REFERENCE") != nullptr) GTEST_SKIP() << "updating references";
    EXPECT_FALSE(matchesReference(two, "badge_1"));
}

}  // namespace
}  // namespace vistrel
