// While a layout saved on the displays connected now waits to be restored, the status panel
// offers it in its first row and the status item carries a dot.
#include <gtest/gtest.h>

#include "display_offer.h"
#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "status_menu_fixture.h"
#include "ui/kit/dfkit_menu_row.h"

namespace vistrel::testing {
namespace {

constexpr const char* offerRow = "Restore \"Desk\" for these displays";

class DisplayOfferRowTest : public FollowingStatusMenuTest {
  protected:
    void comeBackToTheDesk() { desk.play("Desk"); }
    template <typename Change>
    void change(Change change) {
        desk.change(change);
    }

    // Whether the status item's mark carries its dot: a second shape beside the mark.
    bool dotted() { return item().image()->all<DisplayList::Fill>().size() == 2; }
    const SimWindow& notes() {
        for (const SimWindow& window : desktop.windows()) {
            if (window.title == "Notes") return window;
        }
        throw std::logic_error("no Notes");
    }
};

TEST_F(DisplayOfferRowTest, TheOfferedLayoutIsThePanelsFirstRowUnderItsHeader) {
    comeBackToTheDesk();
    open();
    const auto& rows = controller->panel()->content().rows();
    ASSERT_GE(rows.size(), 2u);
    const auto* row = dynamic_cast<const DFKitMenuRow*>(rows[1].get());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->title(), offerRow);
    EXPECT_EQ(row->glyph(), DFKitGlyph::display);
}

TEST_F(DisplayOfferRowTest, TheStatusItemCarriesADotWhileTheOfferWaits) {
    EXPECT_FALSE(dotted());
    comeBackToTheDesk();
    EXPECT_TRUE(dotted());
    change([this] { desktop.unplugDisplay(DeskComeback::studio); });
    EXPECT_FALSE(dotted());
}

TEST_F(DisplayOfferRowTest, ClickingTheOfferPutsTheWindowsBackAndTakesTheRowAndTheDotAway) {
    comeBackToTheDesk();
    open();
    clickLabelled(offerRow);
    desktop.executor().advance(DeskComeback::settled);

    EXPECT_EQ(notes().frame, (Rect{1440, 25, 960, 985}));
    EXPECT_FALSE(dotted());
    open();
    EXPECT_EQ(viewLabelled(offerRow), nullptr);
}

TEST_F(DisplayOfferRowTest, ALongNameWrapsOntoMoreLinesInsteadOfBeingCutShort) {
    const std::string title = "Restore \"Safari · Notes · Terminal · Mail\" for these displays";
    DFKitMenuRow cut(DFKitGlyph::display, title, std::nullopt, [] {});
    DFKitMenuRow wrapping(DFKitGlyph::display, title, std::nullopt, [] {});
    wrapping.setWraps(true);
    EXPECT_EQ(cut.sizeThatFits(DFKitMenuRow::size.width), DFKitMenuRow::size);
    const Size size = wrapping.sizeThatFits(DFKitMenuRow::size.width);
    EXPECT_GT(size.height, DFKitMenuRow::size.height);
    wrapping.setFrame({0, 0, size.width, size.height});
    RecordingCanvas canvas;
    wrapping.draw(canvas, Appearance::light);
    std::string drawn;
    for (const auto& text : canvas.finish()->all<DisplayList::Text>())
        drawn += (drawn.empty() ? "" : " ") + text.run.text;
    EXPECT_EQ(drawn, title);
}

TEST_F(DisplayOfferRowTest, NoOfferRowWithoutAnOffer) {
    open();
    const auto& rows = controller->panel()->content().rows();
    for (const auto& row : rows) {
        const auto* menuRow = dynamic_cast<const DFKitMenuRow*>(row.get());
        if (menuRow != nullptr) {
            EXPECT_NE(menuRow->glyph(), DFKitGlyph::display);
        }
    }
}

}  // namespace
}  // namespace vistrel::testing
