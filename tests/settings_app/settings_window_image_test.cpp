#include <gtest/gtest.h>

#include <string>

#include "layouts/layout_store.h"
#include "platform/sim/cairo_canvas.h"
#include "platform/sim/cairo_fonts.h"
#include "reference_image.h"
#include "settings/preference_key.h"
#include "settings_app/settings_window_painter.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

// The window alone, at 1x to keep the reference pictures small.
constexpr double pictureScale = 1;

class SettingsWindowImageTest : public testing::SettingsAppTest {
  protected:
    SettingsWindowImageTest() {
        put(PreferenceKey::agentAccessibilityTrusted, true);
        for (const char* name : {"Writing", "Safari · Mail · Notes"}) {
            LayoutStore::add(*domain, {UUID::random(),
                                       name,
                                       {{"com.apple.Safari", "Safari", "", {0, 0, 0.5, 1}, {}}},
                                       700'000'000});
        }
    }

    CairoSurface picture(Appearance appearance) {
        const SettingsWindowPainter painter(*model, appearance);
        CairoFonts fonts;
        return renderDisplayList(*painter.paint(), painter.size(), pictureScale, fonts);
    }

    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(SettingsWindowImageTest, GeneralLightMatchesTheReference) {
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_general_light"));
}

TEST_F(SettingsWindowImageTest, GeneralDarkMatchesTheReference) {
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "settings_general_dark"));
}

TEST_F(SettingsWindowImageTest, ButtonsWithEveryButtonLargeAndSoftMatchesTheReference) {
    model->setOn("buttons.minimize", true);
    model->setOn("buttons.maximize", true);
    model->choose("buttons.size", "large");
    model->choose("buttons.theme", "soft");
    model->selectPage(PageId::buttons);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_buttons_light"));
}

TEST_F(SettingsWindowImageTest, ShortcutsDarkWithOneSwitchedOffMatchesTheReference) {
    model->setOn("shortcuts.kill", false);
    model->selectPage(PageId::shortcuts);
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "settings_shortcuts_dark"));
}

TEST_F(SettingsWindowImageTest, LayoutsTurnedOffWithAMessageMatchesTheReference) {
    model->setOn("layouts.enabled", false);
    model->setNumber("layouts.gap", 12);
    model->importLayouts("/no/such/file.json");
    model->selectPage(PageId::layouts);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_layouts_light"));
}

// A chosen layout with a web page, a document and a Finder folder, its URL just copied.
void chooseADeskWithDocuments(SettingsModel& model, SimDefaultsStore& domain) {
    const SavedLayout desk{UUID::random(),
                           "Morning desk",
                           {{"com.apple.Safari", "Safari", "Vistrel — Layouts", {0, 0, 0.5, 1}, {}},
                            {"com.apple.TextEdit",
                             "TextEdit",
                             "Meeting Notes.txt — Edited",
                             {0.5, 0, 0.5, 0.5},
                             {},
                             "file:///Users/ada/Documents/Meeting%20Notes.txt"},
                            {"com.apple.finder",
                             "Finder",
                             "Projects",
                             {0.5, 0.5, 0.5, 0.5},
                             {},
                             "file:///Users/ada/Projects/"}},
                           700'000'000};
    LayoutStore::add(domain, desk);
    model.selectPage(PageId::layouts);
    model.selectLayout(desk.id);
    model.copyLayoutURL();
}

TEST_F(SettingsWindowImageTest, LayoutsWithAChosenLayoutShowsItsWindowsMatchesTheReference) {
    chooseADeskWithDocuments(*model, *domain);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_layouts_chosen_light"));
}

TEST_F(SettingsWindowImageTest, LayoutsWithAChosenLayoutDarkMatchesTheReference) {
    chooseADeskWithDocuments(*model, *domain);
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "settings_layouts_chosen_dark"));
}

TEST_F(SettingsWindowImageTest, AboutLightMatchesTheReference) {
    model->selectPage(PageId::about);
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_about_light"));
}

TEST_F(SettingsWindowImageTest, WelcomeFirstStepMatchesTheReference) {
    model->showWelcome();
    EXPECT_TRUE(matchesReference(picture(Appearance::light), "settings_welcome_light"));
}

TEST_F(SettingsWindowImageTest, WelcomeAccessibilityStepWaitingDarkMatchesTheReference) {
    put(PreferenceKey::agentAccessibilityTrusted, false);
    model->showWelcome();
    model->goOn();
    EXPECT_TRUE(matchesReference(picture(Appearance::dark), "settings_welcome_accessibility_dark"));
}

TEST_F(SettingsWindowImageTest, TheWindowGrowsToFitALongPage) {
    model->selectPage(PageId::about);
    EXPECT_EQ(SettingsWindowPainter(*model, Appearance::light).size().height,
              SettingsWindowPainter::minimumHeight);
    for (int i = 0; i < 12; ++i) {
        LayoutStore::add(*domain, {UUID::random(), "Layout", {}, 700'000'000});
    }
    model->selectPage(PageId::layouts);
    EXPECT_GT(SettingsWindowPainter(*model, Appearance::light).size().height,
              SettingsWindowPainter::minimumHeight);
}

}  // namespace
}  // namespace vistrel
