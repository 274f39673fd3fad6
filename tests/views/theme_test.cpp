#include "views/theme.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace vistrel {
namespace {

Color hex(const char* text) {
    return *Color::fromHex(text);
}

std::tuple<double, double, double, double> components(Color c) {
    return {c.red, c.green, c.blue, c.alpha};
}

TEST(Theme, RawValuesAreTheFiveLowerCaseNamesInOrder) {
    std::vector<std::string_view> raws;
    for (Theme theme : allThemes)
        raws.push_back(theme.rawValue());
    EXPECT_EQ(raws,
              (std::vector<std::string_view>{"classic", "soft", "graphite", "mono", "outline"}));
}

TEST(Theme, EachRawValueGivesItsTheme) {
    for (Theme theme : allThemes)
        EXPECT_EQ(Theme::fromRaw(theme.rawValue()), theme);
}

TEST(Theme, ARawValueDifferingOnlyInLetterCaseGivesNone) {
    EXPECT_FALSE(Theme::fromRaw("Classic"));
    EXPECT_FALSE(Theme::fromRaw("MONO"));
    EXPECT_FALSE(Theme::fromRaw("outLine"));
}

TEST(Theme, UnknownOrPaddedRawValuesGiveNone) {
    EXPECT_FALSE(Theme::fromRaw(""));
    EXPECT_FALSE(Theme::fromRaw("dark"));
    EXPECT_FALSE(Theme::fromRaw(" classic"));
}

TEST(ThemeLook, OnlyOutlineStrokesItsRingOneAndAHalfWide) {
    for (Theme theme : allThemes) {
        for (OverlayButton button : allOverlayButtons) {
            const double expected = theme == Theme::outline ? 1.5 : 1.0;
            EXPECT_DOUBLE_EQ(theme.look(button).ringWidth, expected) << theme.rawValue();
        }
    }
}

TEST(ThemeLook, MonoDrawsAllThreeButtonsAlike) {
    const Theme mono = Theme::mono;
    EXPECT_EQ(mono.look(OverlayButton::close), mono.look(OverlayButton::minimize));
    EXPECT_EQ(mono.look(OverlayButton::close), mono.look(OverlayButton::maximize));
}

TEST(ThemeLook, ClassicSoftAndGraphiteDifferByColourPerButton) {
    for (Theme theme : {Theme(Theme::classic), Theme(Theme::soft), Theme(Theme::graphite)}) {
        std::set<std::tuple<double, double, double, double>> fills;
        for (OverlayButton button : allOverlayButtons)
            fills.insert(components(theme.look(button).fill));
        EXPECT_EQ(fills.size(), 3u) << theme.rawValue();
    }
}

TEST(ThemeLook, ClassicUsesTheTrafficLightColours) {
    const Theme classic = Theme::classic;
    EXPECT_EQ(classic.look(OverlayButton::close).fill, hex("#EC4640"));
    EXPECT_EQ(classic.look(OverlayButton::minimize).fill, hex("#F5BF4F"));
    EXPECT_EQ(classic.look(OverlayButton::maximize).fill, hex("#4CC15E"));
    EXPECT_EQ(classic.look(OverlayButton::close).glyph, Color::white());
    EXPECT_EQ(classic.look(OverlayButton::close).ring, Color::black().withAlpha(0.18));
}

TEST(ThemeLook, SoftUsesMutedColoursWithTheDefaultRing) {
    const Theme soft = Theme::soft;
    EXPECT_EQ(soft.look(OverlayButton::close).fill, hex("#D9706B"));
    EXPECT_EQ(soft.look(OverlayButton::minimize).fill, hex("#E3C47A"));
    EXPECT_EQ(soft.look(OverlayButton::maximize).fill, hex("#86BC91"));
    EXPECT_EQ(soft.look(OverlayButton::maximize).ring, Color::black().withAlpha(0.18));
}

TEST(ThemeLook, GraphiteUsesGraysWithAFaintWhiteRing) {
    const Theme graphite = Theme::graphite;
    EXPECT_EQ(graphite.look(OverlayButton::close).fill, hex("#2C2C2E"));
    EXPECT_EQ(graphite.look(OverlayButton::minimize).fill, hex("#636366"));
    EXPECT_EQ(graphite.look(OverlayButton::maximize).fill, hex("#98989D"));
    EXPECT_EQ(graphite.look(OverlayButton::close).glyph, Color::white());
    EXPECT_EQ(graphite.look(OverlayButton::close).ring, Color::white().withAlpha(0.2));
}

TEST(ThemeLook, MonoIsLightWithADarkGlyph) {
    const auto look = Theme(Theme::mono).look(OverlayButton::minimize);
    EXPECT_EQ(look.fill, hex("#F5F5F7"));
    EXPECT_EQ(look.glyph, hex("#1C1C1E"));
    EXPECT_EQ(look.ring, Color::black().withAlpha(0.35));
}

TEST(ThemeLook, OutlineIsATranslucentFaceWithABrightRing) {
    const auto look = Theme(Theme::outline).look(OverlayButton::close);
    EXPECT_EQ(look.fill, Color::black().withAlpha(0.3));
    EXPECT_EQ(look.glyph, Color::white());
    EXPECT_EQ(look.ring, Color::white().withAlpha(0.85));
}

TEST(OverlayButton, EachButtonPerformsItsOwnShortcut) {
    EXPECT_EQ(hotkey(OverlayButton::close), Hotkey::close);
    EXPECT_EQ(hotkey(OverlayButton::minimize), Hotkey::minimize);
    EXPECT_EQ(hotkey(OverlayButton::maximize), Hotkey::maximize);
}

TEST(OverlayButton, RawValuesOutsideZeroToTwoGiveNone) {
    EXPECT_EQ(overlayButtonFromRaw(0), OverlayButton::close);
    EXPECT_EQ(overlayButtonFromRaw(2), OverlayButton::maximize);
    EXPECT_FALSE(overlayButtonFromRaw(-1));
    EXPECT_FALSE(overlayButtonFromRaw(3));
}

}  // namespace
}  // namespace vistrel
