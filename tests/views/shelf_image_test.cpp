#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "layouts/layout_template.h"
#include "layouts/shelf_layout.h"
#include "layouts/shelf_state.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_screen_renderer.h"
#include "reference_image.h"
#include "views/shelf_controller.h"
#include "windows/screens.h"

namespace vistrel {
namespace {

constexpr double pictureScale = 2;  // as on a Retina display
// The pictures show the shelf with this much of Mission Control around it.
constexpr double surroundings = 16;
const Rect wideScreen{0, 0, 1920, 1080};

SavedLayout::Window window(const char* bundleID, UnitRect rect) {
    return {bundleID, "", "", rect, std::nullopt};
}

// Nine arrangements of the default scene's applications, each recognisable by its shape.
std::vector<SavedLayout> savedLayouts(int count) {
    const std::vector<SavedLayout> all = {
        {{},
         "Safari · Notes",
         {window("com.apple.Safari", {0, 0, 0.5, 1}), window("com.apple.Notes", {0.5, 0, 0.5, 1})},
         0},
        {{},
         "Mail · Terminal · Finder",
         {window("com.apple.mail", {0, 0, 0.66, 1}),
          window("com.apple.Terminal", {0.66, 0, 0.34, 0.5}),
          window("com.apple.finder", {0.66, 0.5, 0.34, 0.5})},
         0},
        {{},
         "Writing",
         {window("com.apple.Notes", {0.1, 0.08, 0.55, 0.8}),
          window("com.apple.Safari", {0.35, 0.2, 0.6, 0.75})},
         0},
        {{}, "Terminal", {window("com.apple.Terminal", {0, 0, 1, 1})}, 0},
        {{},
         "Grid",
         {window("com.apple.Safari", {0, 0, 0.5, 0.5}),
          window("com.apple.mail", {0.5, 0, 0.5, 0.5}),
          window("com.apple.Notes", {0, 0.5, 0.5, 0.5}),
          window("com.apple.finder", {0.5, 0.5, 0.5, 0.5})},
         0},
        {{}, "Mail", {window("com.apple.mail", {0.15, 0.1, 0.7, 0.8})}, 0},
        {{},
         "Finder · Safari",
         {window("com.apple.finder", {0, 0, 0.34, 1}),
          window("com.apple.Safari", {0.34, 0, 0.66, 1})},
         0},
        {{}, "Notes", {window("com.apple.Notes", {0.25, 0.1, 0.5, 0.8})}, 0},
        {{},
         "Everything",
         {window("com.apple.Safari", {0, 0, 0.7, 0.7}),
          window("com.apple.Notes", {0.3, 0.3, 0.7, 0.7})},
         0},
    };
    return {all.begin(), all.begin() + count};
}

class ShelfImageTest : public ::testing::Test {
  protected:
    // Mission Control open over the default scene, on the primary screen or a wider one.
    void openMissionControl(std::optional<Rect> screen = std::nullopt) {
        if (screen) {
            desktop.screens().front().frame = *screen;
            desktop.screens().front().visibleFrame = {
                screen->x, screen->y + simDockHeight, screen->width,
                screen->height - simDockHeight - simMenuBarHeight};
        }
        populateDefaultScene(desktop);
        desktop.dock().open();
    }

    ShelfState state(int saved) {
        ShelfState made;
        made.saved = savedLayouts(saved);
        made.templates = LayoutTemplate::all();
        return made;
    }

    ShelfLayout layoutFor(const ShelfState& shown) {
        const Rect area = Screens::snapshot().front().visible;
        return ShelfLayout::make(static_cast<int>(shown.saved.size()),
                                 static_cast<int>(shown.templates.size()), area);
    }

    CairoSurface screen(double scale = pictureScale) {
        SimScreenScene scene;
        scene.missionControl = true;
        scene.scale = scale;
        for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
            const SimWindow* shown = desktop.window(thumbnail.window);
            scene.thumbnails.push_back(
                {thumbnail.frame, shown ? shown->title : std::string(), thumbnail.window, false});
        }
        return renderer.render(scene);
    }

    // The shelf with the state, and Mission Control around it.
    CairoSurface picture(const ShelfState& shown) {
        const ShelfLayout layout = layoutFor(shown);
        controller.show(layout, shown);
        const Rect frame = shown.folded ? layout.pill : layout.frame;
        return crop(screen(), frame.insetBy(-surroundings, -surroundings));
    }

    static CairoSurface crop(const CairoSurface& whole, Rect points) {
        const Rect pixels{points.x * pictureScale, points.y * pictureScale,
                          points.width * pictureScale, points.height * pictureScale};
        CairoSurface part(static_cast<int>(std::lround(pixels.width)),
                          static_cast<int>(std::lround(pixels.height)));
        cairo_t* cr = cairo_create(part.get());
        cairo_set_source_surface(cr, whole.get(), -pixels.x, -pixels.y);
        cairo_paint(cr);
        cairo_destroy(cr);
        return part;
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    SimScreenRenderer renderer{desktop};
    ShelfController controller;
};

TEST_F(ShelfImageTest, EmptyShelfShowsTheSaveCellAndTheTemplatesReference) {
    openMissionControl();
    EXPECT_TRUE(matchesReference(picture(state(0)), "shelf_empty"));
}

TEST_F(ShelfImageTest, ThreeSavedLayoutsShowTheirWindowsInTheirApplicationsColoursReference) {
    openMissionControl();
    EXPECT_TRUE(matchesReference(picture(state(3)), "shelf_three_saved"));
}

TEST_F(ShelfImageTest, NineSavedLayoutsOnAWideScreenReference) {
    openMissionControl(wideScreen);
    EXPECT_TRUE(matchesReference(picture(state(9)), "shelf_nine_saved"));
}

TEST_F(ShelfImageTest, FoldedShelfIsAPillReference) {
    openMissionControl();
    ShelfState folded = state(3);
    folded.folded = true;
    EXPECT_TRUE(matchesReference(picture(folded), "shelf_folded"));
}

TEST_F(ShelfImageTest, ComposingSelectsTheTemplateAndFillsThePickedSlotReference) {
    openMissionControl();
    ShelfState composing = state(2);
    composing.composeTemplate = 3;  // main + stack
    composing.composeApps = {std::string("com.apple.Safari"), std::nullopt, std::nullopt};
    EXPECT_TRUE(matchesReference(picture(composing), "shelf_composing"));
}

TEST_F(ShelfImageTest, HoveredCellIsLighterWithItsNameUnderneathReference) {
    openMissionControl();
    ShelfState hovered = state(3);
    hovered.hovered = ShelfLayout::Item::saved(1);
    EXPECT_TRUE(matchesReference(picture(hovered), "shelf_hovered"));
}

TEST_F(ShelfImageTest, DropSlotIsFilledWithTheAccentReference) {
    openMissionControl();
    ShelfState dropping = state(1);
    dropping.dropSlot = SlotRef{0, 1};
    dropping.hovered = ShelfLayout::Item::layoutTemplate(0);
    EXPECT_TRUE(matchesReference(picture(dropping), "shelf_drop_slot"));
}

TEST_F(ShelfImageTest, OptionHeldMarksSavedCellsForDeletionReference) {
    openMissionControl();
    ShelfState option = state(3);
    option.optionHeld = true;
    option.hovered = ShelfLayout::Item::saved(0);
    EXPECT_TRUE(matchesReference(picture(option), "shelf_option_held"));
}

// The whole screen at one pixel per point: the glass shows Mission Control's thumbnails
// blurred and darkened behind the shelf, and nothing else of the screen changes.
TEST_F(ShelfImageTest, ShelfOverMissionControlReference) {
    openMissionControl();
    ShelfState shown = state(3);
    shown.hovered = ShelfLayout::Item::saved(0);
    controller.show(layoutFor(shown), shown);
    EXPECT_TRUE(matchesReference(screen(1), "shelf_over_mission_control"));
}

}  // namespace
}  // namespace vistrel
