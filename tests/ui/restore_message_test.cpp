// A restore started from the status panel, from a layout's row or from the offer for the
// displays, tells the user what went wrong in a message on the screen, as one in Mission
// Control does.
#include <gtest/gtest.h>

#include "display_offer.h"

namespace vistrel::testing {
namespace {

constexpr double windowWork = 3;  // long enough for the layouts queue to finish
const std::string goneFile = "file:///nowhere/Gone.txt";

class RestoreMessageTest : public FollowingStatusMenuTest {
  protected:
    // Notes on the left half, and a Notes window on a file that has since been deleted.
    SavedLayout withAGoneFile(std::string name, std::optional<std::string> display) {
        SavedLayout layout{
            UUID::random(),
            std::move(name),
            {{"com.apple.Notes", "Notes", "Notes", {0, 0, 0.5, 1}, display},
             {"com.apple.Notes", "Notes", "Gone.txt", {0.5, 0, 0.5, 1}, display, goneFile}}};
        layout.displays = DisplayMatch::displaysOf(Screens::snapshot());
        LayoutStore::add(*Shared::store(), layout);
        return layout;
    }
    std::string shown() const {
        const HUDController& toast = controller->toast();
        return toast.isVisible() ? toast.view().message() : std::string();
    }
};

TEST_F(RestoreMessageTest, ALayoutRowTellsOfTheFilesThatNoLongerExist) {
    withAGoneFile("Notes", std::nullopt);
    open();

    clickLabelled("Notes");
    desktop.executor().runUntilIdle();

    EXPECT_EQ(shown(), "1 document no longer exists");
    desktop.executor().advance(StatusMenuController::toastSeconds + 0.1);
    EXPECT_EQ(shown(), "");
}

TEST_F(RestoreMessageTest, ALayoutRowWhoseWindowsAreAllClosedSaysSo) {
    LayoutStore::add(
        *Shared::store(),
        {{}, "Elsewhere", {{"com.example.none", "", "", {0, 0, 1, 1}, std::nullopt}}, 0});
    open();

    clickLabelled("Elsewhere");
    desktop.executor().advance(windowWork);

    EXPECT_EQ(controller->toast().view().message(), "None of its windows are open");
}

TEST_F(RestoreMessageTest, ALayoutRowThatRestoresEverythingShowsNoMessage) {
    LayoutStore::add(*Shared::store(),
                     {{}, "Notes", {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}}, 0});
    open();

    clickLabelled("Notes");
    desktop.executor().advance(windowWork);

    EXPECT_FALSE(controller->toast().isVisible());
}

TEST_F(RestoreMessageTest, TheOfferForTheDisplaysTellsOfTheFilesThatNoLongerExist) {
    desk.change([this] { desktop.plugDisplay(DeskComeback::studio, DeskComeback::studioSize); });
    withAGoneFile("Desk", Screens::snapshot().back().id);
    desk.change([this] { desktop.unplugDisplay(DeskComeback::studio); });
    desk.change([this] { desktop.plugDisplay(DeskComeback::studio, DeskComeback::studioSize); });
    open();

    clickLabelled("Restore \"Desk\" for these displays");
    desktop.executor().runUntilIdle();

    EXPECT_EQ(shown(), "1 document no longer exists");
}

}  // namespace
}  // namespace vistrel::testing
