#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "settings/preference_key.h"
#include "settings_app/settings_palette.h"
#include "settings_app_test.h"
#include "views/theme.h"

namespace vistrel {
namespace {

class SettingsPicturesTest : public testing::SettingsAppTest {
  protected:
    // The round button faces of one colour a picture fills, by their widths.
    std::vector<double> faces(std::string_view picture, Color face) {
        std::vector<double> widths;
        for (const auto& fill :
             model->picture(picture, Appearance::light)->all<DisplayList::Fill>()) {
            if (fill.color == face) widths.push_back(fill.path.controlBounds().width);
        }
        return widths;
    }
    Color faceOf(Theme theme, OverlayButton button) { return theme.look(button).fill; }

    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(SettingsPicturesTest, ThePreviewShowsTheButtonsTheUserTurnedOn) {
    const Color minimize = faceOf(Theme::classic, OverlayButton::minimize);
    EXPECT_TRUE(faces("buttons.preview", minimize).empty());
    model->setOn("buttons.minimize", true);
    EXPECT_EQ(faces("buttons.preview", minimize).size(), 1u);
}

TEST_F(SettingsPicturesTest, ThePreviewDrawsTheButtonsAtTheChosenSize) {
    const Color close = faceOf(Theme::classic, OverlayButton::close);
    model->choose("buttons.size", "large");
    EXPECT_EQ(faces("buttons.preview", close), (std::vector<double>{32}));
    model->choose("buttons.size", "small");
    EXPECT_EQ(faces("buttons.preview", close), (std::vector<double>{20}));
}

TEST_F(SettingsPicturesTest, ThePreviewDrawsTheButtonsInTheChosenTheme) {
    model->choose("buttons.theme", "graphite");
    EXPECT_EQ(faces("buttons.preview", faceOf(Theme::graphite, OverlayButton::close)).size(), 1u);
}

TEST_F(SettingsPicturesTest, TheWelcomePictureShowsEveryButton) {
    for (const OverlayButton button : allOverlayButtons) {
        EXPECT_EQ(faces("welcome.picture", faceOf(Theme::classic, button)).size(), 1u);
    }
}

TEST_F(SettingsPicturesTest, TheThemesPictureShowsAllFiveAtTheChosenSize) {
    model->choose("buttons.size", "large");
    for (const Theme theme : allThemes) {
        const auto widths = faces("buttons.themes", faceOf(theme, OverlayButton::close));
        EXPECT_FALSE(widths.empty()) << theme.rawValue();
        EXPECT_TRUE(std::all_of(widths.begin(), widths.end(),
                                [](double w) { return std::abs(w - 32) < 1e-6; }))
            << theme.rawValue() << " " << ::testing::PrintToString(widths);
    }
}

TEST_F(SettingsPicturesTest, TheThemesPictureRingsTheChosenTheme) {
    const auto ringX = [&] {
        const Color accent = SettingsPalette::accent.resolved(Appearance::light);
        for (const auto& stroke :
             model->picture("buttons.themes", Appearance::light)->all<DisplayList::Stroke>()) {
            if (stroke.color == accent) return stroke.path.controlBounds().midX();
        }
        return -1.0;
    };
    const double classic = ringX();
    model->choose("buttons.theme", "outline");
    const double outline = ringX();
    EXPECT_GT(classic, 0);
    EXPECT_GT(outline, classic);
}

TEST_F(SettingsPicturesTest, OnlyPictureControlsHavePictures) {
    EXPECT_EQ(model->picture("buttons.minimize", Appearance::light), nullptr);
    EXPECT_EQ(model->picture("general.nothing", Appearance::light), nullptr);
    EXPECT_NE(model->picture("about.mark", Appearance::dark), nullptr);
}

}  // namespace
}  // namespace vistrel
