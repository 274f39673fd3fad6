#include <gtest/gtest.h>

#include <set>

#include "support/sim_test.h"
#include "ui/kit/dfkit_button.h"
#include "ui/kit/dfkit_glyph.h"
#include "ui/kit/dfkit_key_row.h"
#include "ui/kit/dfkit_palette.h"
#include "ui/kit/dfkit_section_label.h"
#include "ui/kit/dfkit_switch.h"

namespace vistrel::testing {
namespace {

TEST(DFKitPaletteTest, ResolvesEachColourForTheAppearance) {
    EXPECT_EQ(DFKit::surface.resolved(Appearance::light), Color::white());
    EXPECT_EQ(DFKit::surface.resolved(Appearance::dark), Color::fromRGB(0x1B1B1D));
    EXPECT_EQ(DFKit::indigo.resolved(Appearance::dark), Color::fromRGB(0x7B7DFF));
    EXPECT_DOUBLE_EQ(DFKit::line.resolved(Appearance::dark).alpha, 0.09);
    EXPECT_EQ(DFKit::onIndigo.resolved(Appearance::dark), Color::fromRGB(0x111214));
}

TEST(DFKitGlyphTest, HasFortyTwoGlyphsNamedInOrder) {
    ASSERT_EQ(allGlyphs().size(), 42u);
    EXPECT_EQ(rawValue(DFKitGlyph::display), "display");
    EXPECT_EQ(rawValue(DFKitGlyph::apps), "apps");
    EXPECT_EQ(rawValue(DFKitGlyph::wins), "wins");
    EXPECT_EQ(rawValue(DFKitGlyph::playpause), "playpause");
    for (DFKitGlyph glyph : allGlyphs())
        EXPECT_EQ(glyphNamed(rawValue(glyph)), glyph);
    EXPECT_EQ(glyphNamed("nothing"), std::nullopt);
}

TEST(DFKitGlyphTest, EveryGlyphIsItsOwnPictogramInsideTheGrid) {
    std::set<std::string> seen;
    for (DFKitGlyph glyph : allGlyphs()) {
        const Path path = glyphPath(glyph);
        ASSERT_FALSE(path.isEmpty()) << rawValue(glyph);
        const Rect bounds = path.controlBounds();
        EXPECT_GE(bounds.minX(), 1.0) << rawValue(glyph);
        EXPECT_GE(bounds.minY(), 1.0) << rawValue(glyph);
        EXPECT_LE(bounds.maxX(), 23.0) << rawValue(glyph);
        EXPECT_LE(bounds.maxY(), 23.0) << rawValue(glyph);
        std::string signature;
        for (const auto& element : path.elements())
            signature += std::to_string(element.points[0].x) + "," +
                         std::to_string(element.points[0].y) + ";";
        EXPECT_TRUE(seen.insert(signature).second) << rawValue(glyph) << " repeats another glyph";
    }
}

TEST(DFKitGlyphTest, StrokesOnePointSixWideAtEverySize) {
    for (double side : {15.0, 24.0, 48.0}) {
        RecordingCanvas canvas(true);
        drawGlyph(canvas, DFKitGlyph::check, {0, 0, side, side}, Color::black());
        const auto strokes = canvas.finish()->all<DisplayList::Stroke>();
        ASSERT_EQ(strokes.size(), 1u);
        EXPECT_DOUBLE_EQ(strokes[0].style.width, 1.6);
        EXPECT_NEAR(strokes[0].path.controlBounds().maxX(), 19.5 * side / 24, 1e-9);
    }
}

class DFKitSwitchTest : public SimTest {
  protected:
    DFKitSwitch toggle{"Hide app", false, [this](bool on) { changes.push_back(on); }};
    std::vector<bool> changes;

    void SetUp() override { toggle.setFrame({0, 0, 36, 22}); }
};

TEST_F(DFKitSwitchTest, AMouseUpInsideFlipsItAndReportsTheNewValue) {
    toggle.mouseUp({10, 10});
    EXPECT_TRUE(toggle.isOn());
    EXPECT_EQ(changes, std::vector<bool>{true});
}

TEST_F(DFKitSwitchTest, AMouseUpOutsideDoesNothing) {
    toggle.mouseUp({40, 10});
    EXPECT_FALSE(toggle.isOn());
    EXPECT_TRUE(changes.empty());
}

TEST_F(DFKitSwitchTest, KeepsItsKnobTwoPointsFromTheLeftWhenOffAndAtWidthLessTwentySixWhenOn) {
    EXPECT_EQ(toggle.knobRect(), (Rect{2, 2, 24, 18}));
    toggle.toggle();
    EXPECT_EQ(toggle.knobRect(), (Rect{10, 2, 24, 18}));
}

TEST_F(DFKitSwitchTest, IsACheckBoxWhoseValueIsItsState) {
    auto node = toggle.accessibilityNode();
    ASSERT_TRUE(node);
    EXPECT_EQ(node->role, "AXCheckBox");
    EXPECT_EQ(node->label, "Hide app");
    EXPECT_EQ(node->value, false);
    node->press();
    EXPECT_TRUE(toggle.isOn());
}

TEST_F(DFKitSwitchTest, DrawsTheAccentTrackWhenOn) {
    toggle.toggle();
    RecordingCanvas canvas(true);
    toggle.draw(canvas, Appearance::light);
    EXPECT_EQ(canvas.finish()->all<DisplayList::Fill>().front().color, Color::fromRGB(0x5A5CF2));
}

using DFKitButtonTest = SimTest;

TEST_F(DFKitButtonTest, IsPressedWhileTheMouseIsDownAndActsOnAMouseUpInside) {
    int actions = 0;
    DFKitButton button("Open System Settings…", DFKitButton::Variant::primary, 24,
                       [&] { ++actions; });
    button.setFrame({0, 0, 140, 24});
    button.mouseDown({5, 5});
    EXPECT_TRUE(button.pressed());
    EXPECT_EQ(actions, 0);
    button.mouseUp({5, 5});
    EXPECT_FALSE(button.pressed());
    EXPECT_EQ(actions, 1);
}

TEST_F(DFKitButtonTest, AMouseUpOutsideDoesNotAct) {
    int actions = 0;
    DFKitButton button("Go", DFKitButton::Variant::standard, 24, [&] { ++actions; });
    button.setFrame({0, 0, 60, 24});
    button.mouseDown({5, 5});
    button.mouseUp({5, 30});
    EXPECT_EQ(actions, 0);
    EXPECT_FALSE(button.pressed());
}

TEST_F(DFKitButtonTest, IsACapsuleWithHalfItsHeightAsRadius) {
    DFKitButton button("Go", DFKitButton::Variant::standard, 24, [] {});
    EXPECT_EQ(button.sizeThatFits(284).height, 24);
    button.setFrame({0, 0, 60, 24});
    RecordingCanvas canvas(true);
    button.draw(canvas, Appearance::light);
    const auto strokes = canvas.finish()->all<DisplayList::Stroke>();
    ASSERT_EQ(strokes.size(), 1u);
    EXPECT_EQ(strokes[0].color, DFKit::lineStrong.light);
}

using DFKitSectionLabelTest = SimTest;

TEST_F(DFKitSectionLabelTest, IsUpperCaseInTheMonoFontSpacedOut) {
    DFKitSectionLabel label("Shortcuts in Mission Control");
    RecordingCanvas canvas(true);
    label.draw(canvas, Appearance::dark);
    const auto texts = canvas.finish()->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "SHORTCUTS IN MISSION CONTROL");
    EXPECT_EQ(texts[0].run.font.name, "GeistMono-Medium");
    EXPECT_DOUBLE_EQ(texts[0].run.kern, 1.4);
    EXPECT_EQ(texts[0].run.color, DFKit::inkMuted.dark);
}

}  // namespace
}  // namespace vistrel::testing
