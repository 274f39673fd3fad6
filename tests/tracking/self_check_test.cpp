#include "tracking/self_check.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

MissionControlReading reading(int thumbnails, int windows, int mapped) {
    MissionControlReading made;
    made.host = MissionControlHost::dock;
    made.thumbnails = thumbnails;
    made.windows = windows;
    made.mapped = mapped;
    return made;
}

const MissionControlReading noThumbnailRead = reading(0, 4, 0);
const MissionControlReading noneTied = reading(6, 6, 0);
const MissionControlReading worked = reading(6, 6, 5);
const MissionControlReading emptyDesktop = reading(0, 0, 0);

TEST(SelfCheckTest, ThreeOpeningsInARowWithNoThumbnailReadMeanMissionControlCannotBeRead) {
    SelfCheck check;
    EXPECT_FALSE(check.record(noThumbnailRead));
    EXPECT_FALSE(check.record(noThumbnailRead));
    EXPECT_FALSE(check.cannotRead());
    EXPECT_TRUE(check.record(noThumbnailRead));
    EXPECT_TRUE(check.cannotRead());
}

TEST(SelfCheckTest, OpeningsWhoseThumbnailsWereNeverTiedToAWindowCountAsFailed) {
    SelfCheck check;
    for (int i = 0; i < SelfCheck::failuresToTell; ++i)
        check.record(noneTied);
    EXPECT_TRUE(check.cannotRead());
}

TEST(SelfCheckTest, TheFirstOpeningThatWorksClearsIt) {
    SelfCheck check;
    for (int i = 0; i < SelfCheck::failuresToTell; ++i)
        check.record(noThumbnailRead);
    EXPECT_TRUE(check.record(worked));
    EXPECT_FALSE(check.cannotRead());
    EXPECT_EQ(check.failuresInARow(), 0);
}

TEST(SelfCheckTest, AnOpeningThatWorksBreaksTheRun) {
    SelfCheck check;
    check.record(noThumbnailRead);
    check.record(noThumbnailRead);
    check.record(worked);
    check.record(noThumbnailRead);
    EXPECT_FALSE(check.cannotRead());
}

TEST(SelfCheckTest, AnEmptyDesktopProvesNothingEitherWay) {
    SelfCheck check;
    check.record(noThumbnailRead);
    check.record(noThumbnailRead);
    EXPECT_EQ(SelfCheck::judge(emptyDesktop), SelfCheck::Verdict::nothingToShow);
    check.record(emptyDesktop);
    EXPECT_EQ(check.failuresInARow(), 2);
    check.record(noThumbnailRead);
    EXPECT_TRUE(check.cannotRead());
}

TEST(SelfCheckTest, KeepsTheLastOpeningsReading) {
    SelfCheck check;
    EXPECT_FALSE(check.last());
    check.record(noneTied);
    EXPECT_EQ(check.last(), noneTied);
}

TEST(MissionControlReadingTest, TheSummaryNamesTheHostAndEveryCount) {
    MissionControlReading read = reading(12, 0, 11);
    read.refusals = 1;
    EXPECT_EQ(read.summary(), "host Dock, thumbnails 12, windows 0, mapped 11, refusals 1");
    EXPECT_EQ(MissionControlReading{}.summary(),
              "host none, thumbnails 0, windows 0, mapped 0, refusals 0");
}

}  // namespace
}  // namespace vistrel
