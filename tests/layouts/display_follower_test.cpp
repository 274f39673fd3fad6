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

// Every way macOS may treat windows and notifications as displays come and go.
class FollowDisplaysTest : public DisplayFollowerTest,
                           public ::testing::WithParamInterface<SimDisplayBehavior> {
  protected:
    FollowDisplaysTest() { desktop.displayBehavior = GetParam(); }

    // When the last notification of a plug or unplug made now comes.
    double lastStage() const { return GetParam().toldInStages ? SimDesktop::secondStage : 0; }

    // At the desk: Notes and Safari side by side on the Studio Display; then unplugged.
    SavedLayout saveAtTheDesk() {
        plug(studio, studioSize);
        window("Notes").frame = studioLeft;
        window("Start Page").frame = studioRight;
        const std::string display = Screens::snapshot().back().id;
        const SavedLayout desk =
            save("Desk", {{"com.apple.Notes", "Notes", "Notes", leftHalf, display},
                          {"com.apple.Safari", "Safari", "Start Page", rightHalf, display}});
        unplug(studio);
        return desk;
    }
};

}  // namespace

TEST_P(FollowDisplaysTest, PluggingTheDeskInAgainOffersItsLayoutOnceTheDisplaysHaveSettled) {
    saveAtTheDesk();

    desktop.plugDisplay(studio, studioSize);
    // The wait starts again from the plug's last stage.
    advance(lastStage() + DisplayFollower::settleSeconds - 0.1);
    EXPECT_EQ(offered(), std::nullopt);
    advance(0.2);

    EXPECT_EQ(offered(), "Desk");
    EXPECT_EQ(logged("layouts: the displays changed; offering \"Desk\" for these displays"), 1u);
}

TEST_P(FollowDisplaysTest, TheLatestLayoutSavedOnTheseDisplaysIsTheOneChosen) {
    saveAtTheDesk();
    advance(60);
    plug(studio, studioSize);
    save("Desk, afternoon", {{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}});
    unplug(studio);

    plug(studio, studioSize);

    EXPECT_EQ(offered(), "Desk, afternoon");
}

TEST_P(FollowDisplaysTest, EachSetOfDisplaysGetsTheLayoutSavedOnIt) {
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

TEST_P(FollowDisplaysTest, DisplaysNoLayoutWasSavedOnOfferNothingAndSaySoOnce) {
    saveAtTheDesk();
    const std::string_view line =
        "layouts: the displays changed; no layout was saved on these displays";
    const std::size_t before = logged(line);

    plug(projector, projectorSize);

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(logged(line), before + 1);
}

TEST_P(FollowDisplaysTest, ADisplayThatFlickersInsideTwoSecondsDoesNothing) {
    saveAtTheDesk();
    const std::size_t linesBefore = log().size();

    desktop.plugDisplay(studio, studioSize);
    advance(1);
    desktop.unplugDisplay(studio);
    settle();

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(log().size(), linesBefore);
}

TEST_P(FollowDisplaysTest, TheOfferGoesWhenTheDisplaysChangeAgain) {
    saveAtTheDesk();
    plug(studio, studioSize);
    ASSERT_EQ(offered(), "Desk");

    plug(projector, projectorSize);

    EXPECT_EQ(offered(), std::nullopt);
}

TEST_P(FollowDisplaysTest, AcceptingTheOfferPutsTheWindowsBackAndEndsTheOffer) {
    saveAtTheDesk();
    plug(studio, studioSize);

    follower().acceptOffer();
    run();

    EXPECT_EQ(window("Notes").frame, studioLeft);
    EXPECT_EQ(window("Start Page").frame, studioRight);
    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_TRUE(LayoutUndo::shared().available());
}

TEST_P(FollowDisplaysTest, AnOfferWhoseLayoutWasDeletedSaysSoAndMovesNothing) {
    const SavedLayout desk = saveAtTheDesk();
    plug(studio, studioSize);
    LayoutStore::remove(*Shared::store(), desk.id);
    const Rect before = window("Notes").frame;

    follower().acceptOffer();
    run();

    EXPECT_EQ(window("Notes").frame, before);
    EXPECT_EQ(logged("layouts: \"Desk\" was deleted before it could be restored"), 1u);
}

TEST_P(FollowDisplaysTest, AutomaticRestoresAtOnceWithoutLaunchingAnything) {
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
    EXPECT_TRUE(LayoutUndo::shared().available());
}

TEST_P(FollowDisplaysTest, AnAutomaticRestoreWritesOneLogLineSayingWhatItDid) {
    setFollow(FollowDisplays::automatic);
    plug(studio, studioSize);
    const std::string display = Screens::snapshot().back().id;
    save("Desk",
         {{"com.apple.Notes", "Notes", "Notes", leftHalf, display},
          {"com.apple.Notes", "Notes", "Gone.txt", rightHalf, display, "file:///nowhere/Gone.txt"},
          {"com.apple.Terminal", "Terminal", "Terminal", rightHalf, display}});
    unplug(studio);
    quit("com.apple.Terminal");
    const std::size_t linesBefore = log().size();

    plug(studio, studioSize);

    const std::vector<std::string> lines = log();
    EXPECT_EQ(std::vector<std::string>(lines.begin() + static_cast<long>(linesBefore), lines.end()),
              std::vector<std::string>{"layouts: the displays changed; restored \"Desk\" for "
                                       "these displays, 1 of 3 windows, 1 document no longer "
                                       "exists"});
}

TEST_P(FollowDisplaysTest, AnAutomaticRestoreIsUndoneLikeAnyOther) {
    setFollow(FollowDisplays::automatic);
    saveAtTheDesk();
    desktop.plugDisplay(studio, studioSize);
    // Where macOS left Notes as the display came back, before the restore.
    const Rect beforeTheRestore = window("Notes").frame;
    settle();
    ASSERT_EQ(window("Notes").frame, studioLeft);

    LayoutActions::undo({});
    run();

    EXPECT_EQ(window("Notes").frame, beforeTheRestore);
}

TEST_P(FollowDisplaysTest, OffLeavesTheWindowsAloneAndSaysWhyOnce) {
    setFollow(FollowDisplays::off);
    saveAtTheDesk();

    desktop.plugDisplay(studio, studioSize);
    // Where macOS left Notes as the display came back.
    const Rect before = window("Notes").frame;
    settle();

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(window("Notes").frame, before);
    EXPECT_EQ(logged("layouts: the displays changed to those of \"Desk\"; following the displays "
                     "is off"),
              1u);
}

TEST_P(FollowDisplaysTest, WithLayoutsTurnedOffNothingIsOffered) {
    saveAtTheDesk();
    setPreference(PreferenceKey::layoutsEnabled, false);

    plug(studio, studioSize);

    EXPECT_EQ(offered(), std::nullopt);
}

TEST_P(FollowDisplaysTest, TheLidClosedAtTheDeskIsASetOfItsOwn) {
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

TEST_P(FollowDisplaysTest, WakingAtTheSameDisplaysDoesNothing) {
    saveAtTheDesk();
    plug(studio, studioSize);
    follower().acceptOffer();
    run();
    const std::size_t linesBefore = log().size();

    desktop.suspend();
    desktop.wake();
    settle();

    EXPECT_EQ(offered(), std::nullopt);
    EXPECT_EQ(log().size(), linesBefore);
}

TEST_P(FollowDisplaysTest, ADisplayPluggedInWhileTheMacSleptIsFollowedOnWaking) {
    saveAtTheDesk();
    desktop.suspend();
    desktop.plugDisplay(studio, studioSize);
    settle();
    EXPECT_EQ(offered(), std::nullopt);

    desktop.wake();
    settle();

    EXPECT_EQ(offered(), "Desk");
}

TEST_P(FollowDisplaysTest, AWakeAloneIsEnoughWhenTheOtherNotificationsWereLost) {
    saveAtTheDesk();
    desktop.displayWatch().dropsPosts = true;
    desktop.plugDisplay(studio, studioSize);
    settle();
    desktop.displayWatch().dropsPosts = false;

    desktop.suspend();
    desktop.wake();
    settle();

    EXPECT_EQ(offered(), "Desk");
}

TEST_P(FollowDisplaysTest, ARefusedWatchIsLoggedAsAnError) {
    follower().stop();
    desktop.displayWatch().refuses = true;

    follower().start();

    EXPECT_EQ(logged("layouts: the system refused to tell of display changes; layouts will not "
                     "follow the displays"),
              1u);
}

TEST_P(FollowDisplaysTest, AfterStoppingNoChangeIsFollowed) {
    saveAtTheDesk();
    follower().stop();

    plug(studio, studioSize);

    EXPECT_EQ(offered(), std::nullopt);
}

using Unplugged = SimDisplayBehavior::Unplugged;

INSTANTIATE_TEST_SUITE_P(
    EveryWayMacOSTreatsDisplays, FollowDisplaysTest,
    ::testing::Values(SimDisplayBehavior{Unplugged::gathered, true, false},
                      SimDisplayBehavior{Unplugged::gathered, false, false},
                      SimDisplayBehavior{Unplugged::leftOffScreen, true, false},
                      SimDisplayBehavior{Unplugged::leftOffScreen, false, false},
                      SimDisplayBehavior{Unplugged::gathered, true, true},
                      SimDisplayBehavior{Unplugged::leftOffScreen, false, true}),
    [](const ::testing::TestParamInfo<SimDisplayBehavior>& info) {
        const SimDisplayBehavior& b = info.param;
        return std::string(b.unplugged == Unplugged::gathered ? "Gathered" : "LeftOffScreen") +
               (b.toldInStages ? "InStages" : "AtOnce") + (b.replugRestores ? "MacOSPutsBack" : "");
    });

}  // namespace vistrel::testing
