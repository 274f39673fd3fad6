#include "tracking/tap_disable_counter.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(TapDisableCounterTest, TheSixthDisablingWithinAMinuteIsReportedWithTheCount) {
    TapDisableCounter counter;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(counter.record(i * 10.0), std::nullopt);
    EXPECT_EQ(counter.record(55), 6u);
}

TEST(TapDisableCounterTest, ARunOfDisablingsIsReportedOnce) {
    TapDisableCounter counter;
    for (int i = 0; i < 6; ++i)
        counter.record(i);
    for (int i = 6; i < 20; ++i)
        EXPECT_EQ(counter.record(i), std::nullopt);
}

TEST(TapDisableCounterTest, SixDisablingsSpreadOverMoreThanAMinuteAreNotReported) {
    TapDisableCounter counter;
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(counter.record(i * 15.0), std::nullopt);
}

TEST(TapDisableCounterTest, ANewRunAfterACalmMinuteIsReportedAgain) {
    TapDisableCounter counter;
    for (int i = 0; i < 6; ++i)
        counter.record(i);
    counter.record(200);
    for (int i = 1; i < 5; ++i)
        counter.record(200 + i);
    EXPECT_EQ(counter.record(206), 6u);
}

}  // namespace
}  // namespace vistrel
