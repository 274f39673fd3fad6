#include <gtest/gtest.h>

#include <string>

#include "display_offer.h"
#include "layouts/layout_store.h"
#include "platform/sim/cairo_canvas.h"
#include "reference_image.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"
#include "tracking/health.h"
#include "ui/kit/dfkit_glyph.h"
#include "ui/kit/dfkit_palette.h"
#include "ui/kit/dfkit_scroll_view.h"

namespace vistrel::testing {
namespace {

constexpr double pictureScale = 2;  // as on a Retina display

class StatusPanelImageTest : public StatusMenuTest {
  protected:
    void SetUp() override {
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        StatusMenuTest::SetUp();
        controller->reportProblem = [] {};
    }

    void saveLayouts(int count) {
        const char* names[] = {"Safari · Notes",
                               "Mail · Terminal · Finder",
                               "Writing",
                               "Terminal",
                               "Grid",
                               "Mail",
                               "Finder · Safari",
                               "Notes",
                               "Everything at once, side by side on the big screen",
                               "Tenth"};
        for (int i = 0; i < count; ++i) {
            LayoutStore::add(
                *Shared::store(),
                {{}, names[i], {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}}, 0});
        }
    }

    CairoSurface picture(Appearance appearance) {
        desktop.appearance().set(appearance);
        open();
        CairoFonts fonts;
        return renderDisplayList(*panel().content(), panel().frame().size(), pictureScale, fonts);
    }
};

TEST_F(StatusPanelImageTest, TrustedLightMatchesReference) {
    saveLayouts(3);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_trusted_light"));
}

TEST_F(StatusPanelImageTest, TrustedDarkMatchesReference) {
    saveLayouts(3);
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "status_panel_trusted_dark"));
}

TEST_F(StatusPanelImageTest, NotTrustedLightMatchesReference) {
    desktop.trusted = false;
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_not_trusted_light"));
}

TEST_F(StatusPanelImageTest, NotTrustedDarkMatchesReference) {
    desktop.trusted = false;
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "status_panel_not_trusted_dark"));
}

TEST_F(StatusPanelImageTest, StaleGrantLightMatchesReference) {
    Health::shared().setStaleGrant(true);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_stale_grant_light"));
}

TEST_F(StatusPanelImageTest, CannotReadMissionControlDarkMatchesReference) {
    MissionControlReading nothingRead;
    nothingRead.windows = 4;
    for (int i = 0; i < SelfCheck::failuresToTell; ++i)
        Health::shared().openingEnded(nothingRead, 0);
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "status_panel_cannot_read_dark"));
}

// A 1280×800 display with ten layouts, the update row and the Accessibility button: the
// layouts scroll, scrolled a little way down.
TEST_F(StatusPanelImageTest, CrowdedOnASmallDisplayMatchesReference) {
    ScreenDescription& screen = desktop.screens().front();
    screen.frame = {0, 0, 1280, 800};
    screen.visibleFrame = {0, 70, 1280, 705};
    controller->updater = StatusMenuController::Updater{[] {}, [] { return false; }, [](bool) {}};
    desktop.trusted = false;
    saveLayouts(10);
    open();
    for (const auto& row : controller->panel()->content().rows()) {
        if (auto* layouts = dynamic_cast<DFKitScrollView*>(row.get())) layouts->scrollBy(40);
    }
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_crowded_small_display"));
}

// Back at the desk: the layout saved there is offered above everything else, its long name
// wrapped.
TEST_F(StatusPanelImageTest, ALayoutOfferedForTheDisplaysMatchesReference) {
    saveLayouts(2);
    DisplayFollower::shared().start();
    DeskComeback(desktop).play("Everything at once, side by side on the big screen");
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_display_offer"));
    DisplayFollower::shared().stop();
}

TEST_F(StatusPanelImageTest, NoSavedLayoutsMatchesReference) {
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_no_layouts"));
}

TEST_F(StatusPanelImageTest, TenSavedLayoutsMatchesReference) {
    saveLayouts(10);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "status_panel_ten_layouts"));
}

// Every glyph at 15 and at 24 points, in order, eight to a row, on the panel's surface.
CairoSurface glyphSheet(Appearance appearance) {
    constexpr int perRow = 8;
    constexpr double cell = 40;
    constexpr double small = 15, large = 24;
    const int rows = static_cast<int>((glyphCount + perRow - 1) / perRow);
    const Size size{perRow * cell * 2, rows * cell};
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({0, 0, size.width, size.height}), DFKit::surface.resolved(appearance));
    for (std::size_t i = 0; i < glyphCount; ++i) {
        const double x = static_cast<double>(i % perRow) * cell * 2;
        const double y = static_cast<double>(i / perRow) * cell;
        const Color ink = DFKit::ink.resolved(appearance);
        drawGlyph(canvas, allGlyphs()[i],
                  {x + (cell - small) / 2, y + (cell - small) / 2, small, small}, ink);
        drawGlyph(canvas, allGlyphs()[i],
                  {x + cell + (cell - large) / 2, y + (cell - large) / 2, large, large}, ink);
    }
    CairoFonts fonts;
    return renderDisplayList(*canvas.finish(), size, pictureScale, fonts);
}

TEST(DFKitGlyphImageTest, ContactSheetMatchesReference) {
    EXPECT_TRUE(matchesReference(glyphSheet(Appearance::light), "glyphs_light"));
}

TEST(DFKitGlyphImageTest, DarkContactSheetMatchesReference) {
    EXPECT_TRUE(matchesReference(glyphSheet(Appearance::dark), "glyphs_dark"));
}

}  // namespace
}  // namespace vistrel::testing
