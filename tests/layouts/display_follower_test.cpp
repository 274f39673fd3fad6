#include "display_follower_test.h"

#include <gtest/gtest.h>

namespace vistrel::testing {

namespace {

using Window = SavedLayout::Window;

constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr UnitRect rightHalf{0.5, 0, 0.5, 1};
// The Studio Display's visible halves, in accessibility coordinates.
constexpr Rect studioLeft{1440, 25, 960, 985};
constexpr Rect studioRight{2400, 25, 960, 985};

class FollowDisplaysTest : public DisplayFollowerTest {
  protected:
    // At the desk: Notes and Safari side by side on the Studio Display; then unplugged.
    SavedLayout saveAtTheDesk() {
        plug(studio, studioSize);
        const std::string display = Screens::snapshot().back().id;
        const SavedLayout desk =
            save("Desk", {{"com.apple.Notes", "Notes", "Notes", leftHalf, display},
                          {"com.apple.Safari", "Safari", "Start Page", rightHalf, display}});
        unplug(studio);
        return desk;
    }
};

}  // namespace

TEST_F(FollowDisplaysTest, PluggingTheDeskInAgainOffersItsLayoutOnceTheDisplaysHaveSettled) {
    saveAtTheDesk();

    desktop.plugDisplay(studio, studioSize);
    // The second stage of the plug comes after 0.6 s; the wait starts again from it.
    advance(2.5);
    EXPECT_EQ(offered(), std::nullopt);
    advance(0.2);

    EXPECT_EQ(offered(), "Desk");
    EXPECT_EQ(logged("layouts: the displays changed; offering \"Desk\" for these displays"), 1u);
}

TEST_F(FollowDisplaysTest, TheLatestLayoutSavedOnTheseDisplaysIsTheOneChosen) {
    saveAtTheDesk();
    advance(60);
    plug(studio, studioSize);
    save("Desk, afternoon", {{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}});
    unplug(studio);

    plug(studio, studioSize);

    EXPECT_EQ(offered(), "Desk, afternoon");
}

TEST_F(FollowDisplaysTest, EachSetOfDisplaysGetsTheLayoutSavedOnIt) {
    save("Laptop", {{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}});
    saveAtTheDesk();
    plug(projector, projectorSize);
    save("Meeting room", {});
    unplug(projector);
    EXPECT_EQ(offered(), "Laptop");

    plug(studio, studioSize);
    EXPECT_EQ(offered(), "Desk");

    unplug(studio);
    plug(projector, projectorSize);
    EXPECT_EQ(offered(), "Meeting room");
}

TEST_F(FollowDisplaysTest, DisplaysNoLayoutWasSavedOnOfferNothingAndSaySoOnce) {
    saveAtTheDesk();
    const std::string_view line =
        "layouts: the displays changed; no layout was saved on these displays";
    const std::size_t before = logged(line);

    plug(projector, projectorSize);

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(logged(line), before + 1);
}

TEST_F(FollowDisplaysTest, ADisplayThatFlickersInsideTwoSecondsDoesNothing) {
    saveAtTheDesk();
    const std::size_t linesBefore = log().size();

    desktop.plugDisplay(studio, studioSize);
    advance(1);
    desktop.unplugDisplay(studio);
    settle();

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(log().size(), linesBefore);
}

TEST_F(FollowDisplaysTest, TheOfferGoesWhenTheDisplaysChangeAgain) {
    saveAtTheDesk();
    plug(studio, studioSize);
    ASSERT_EQ(offered(), "Desk");

    plug(projector, projectorSize);

    EXPECT_EQ(offered(), std::nullopt);
}

TEST_F(FollowDisplaysTest, AcceptingTheOfferPutsTheWindowsBackAndEndsTheOffer) {
    saveAtTheDesk();
    plug(studio, studioSize);

    follower().acceptOffer();
    run();

    EXPECT_EQ(window("Notes").frame, studioLeft);
    EXPECT_EQ(window("Start Page").frame, studioRight);
    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_TRUE(LayoutUndo::shared().available());
}

TEST_F(FollowDisplaysTest, AnOfferWhoseLayoutWasDeletedSaysSoAndMovesNothing) {
    const SavedLayout desk = saveAtTheDesk();
    plug(studio, studioSize);
    LayoutStore::remove(*Shared::store(), desk.id);
    const Rect before = window("Notes").frame;

    follower().acceptOffer();
    run();

    EXPECT_EQ(window("Notes").frame, before);
    EXPECT_EQ(logged("layouts: \"Desk\" was deleted before it could be restored"), 1u);
}

TEST_F(FollowDisplaysTest, AutomaticRestoresAtOnceWithoutLaunchingAnything) {
    setFollow(FollowDisplays::automatic);
    plug(studio, studioSize);
    const std::string display = Screens::snapshot().back().id;
    save("Desk", {{"com.apple.Notes", "Notes", "Notes", leftHalf, display},
                  {"com.apple.Terminal", "Terminal", "Terminal", rightHalf, display}});
    unplug(studio);
    quit("com.apple.Terminal");

    plug(studio, studioSize);

    EXPECT_EQ(window("Notes").frame, studioLeft);
    EXPECT_TRUE(desktop.workspace().launchRequests.empty());
    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(logged("layouts: the displays changed; restoring \"Desk\" for these displays"), 1u);
    EXPECT_TRUE(LayoutUndo::shared().available());
}

TEST_F(FollowDisplaysTest, AnAutomaticRestoreIsUndoneLikeAnyOther) {
    setFollow(FollowDisplays::automatic);
    saveAtTheDesk();
    const Rect notesOnTheLaptop = window("Notes").frame;
    plug(studio, studioSize);
    ASSERT_EQ(window("Notes").frame, studioLeft);

    LayoutActions::undo({});
    run();

    EXPECT_EQ(window("Notes").frame, notesOnTheLaptop);
}

TEST_F(FollowDisplaysTest, OffLeavesTheWindowsAloneAndSaysWhyOnce) {
    setFollow(FollowDisplays::off);
    saveAtTheDesk();
    const Rect before = window("Notes").frame;

    plug(studio, studioSize);

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(window("Notes").frame, before);
    EXPECT_EQ(logged("layouts: the displays changed to those of \"Desk\"; following the displays "
                     "is off"),
              1u);
}

TEST_F(FollowDisplaysTest, WithLayoutsTurnedOffNothingIsOffered) {
    saveAtTheDesk();
    setPreference(PreferenceKey::layoutsEnabled, false);

    plug(studio, studioSize);

    EXPECT_EQ(offered(), std::nullopt);
}

TEST_F(FollowDisplaysTest, TheLidClosedAtTheDeskIsASetOfItsOwn) {
    plug(studio, studioSize);
    save("Desk", {{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}});
    desktop.closeLid();
    settle();
    EXPECT_EQ(offered(), std::nullopt);
    save("Lid closed", {{"com.apple.Notes", "Notes", "Notes", rightHalf, std::nullopt}});

    desktop.openLid();
    settle();
    EXPECT_EQ(offered(), "Desk");

    desktop.closeLid();
    settle();
    EXPECT_EQ(offered(), "Lid closed");
}

TEST_F(FollowDisplaysTest, WakingAtTheSameDisplaysDoesNothing) {
    saveAtTheDesk();
    plug(studio, studioSize);
    follower().acceptOffer();
    run();
    const std::size_t linesBefore = log().size();

    desktop.sleep();
    desktop.wake();
    settle();

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(log().size(), linesBefore);
}

TEST_F(FollowDisplaysTest, ADisplayPluggedInWhileTheMacSleptIsFollowedOnWaking) {
    saveAtTheDesk();
    desktop.sleep();
    desktop.plugDisplay(studio, studioSize);
    settle();
    EXPECT_EQ(offered(), std::nullopt);

    desktop.wake();
    settle();

    EXPECT_EQ(offered(), "Desk");
}

TEST_F(FollowDisplaysTest, AWakeAloneIsEnoughWhenTheOtherNotificationsWereLost) {
    saveAtTheDesk();
    desktop.displayWatch().dropsPosts = true;
    desktop.plugDisplay(studio, studioSize);
    settle();
    desktop.displayWatch().dropsPosts = false;

    desktop.sleep();
    desktop.wake();
    settle();

    EXPECT_EQ(offered(), "Desk");
}

TEST_F(FollowDisplaysTest, ARefusedWatchIsLoggedAsAnError) {
    follower().stop();
    desktop.displayWatch().refuses = true;

    follower().start();

    EXPECT_EQ(logged("layouts: the system refused to tell of display changes; layouts will not "
                     "follow the displays"),
              1u);
}

TEST_F(FollowDisplaysTest, AfterStoppingNoChangeIsFollowed) {
    saveAtTheDesk();
    follower().stop();

    plug(studio, studioSize);

    EXPECT_EQ(offered(), std::nullopt);
}

}  // namespace vistrel::testing
