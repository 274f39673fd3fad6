#include "platform/modal_alert.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

// NSModalResponseStop, NSModalResponseAbort and NSModalResponseContinue, as Apple documents
// them: the answers of a modal session that ended without a button.
constexpr std::int64_t stopped = -1000;
constexpr std::int64_t aborted = -1001;
constexpr std::int64_t continued = -1002;

TEST(AlertResponseTest, EachButtonsReturnNamesItsIndex) {
    EXPECT_EQ(AlertResponse::button(1000, 2), 0u);
    EXPECT_EQ(AlertResponse::button(1001, 2), 1u);
}

TEST(AlertResponseTest, AnAbortedOrStoppedAlertNamesNoButton) {
    EXPECT_EQ(AlertResponse::button(stopped, 2), std::nullopt);
    EXPECT_EQ(AlertResponse::button(aborted, 2), std::nullopt);
    EXPECT_EQ(AlertResponse::button(continued, 2), std::nullopt);
    EXPECT_EQ(AlertResponse::button(0, 2), std::nullopt);
}

TEST(AlertResponseTest, AResponsePastTheLastButtonNamesNone) {
    EXPECT_EQ(AlertResponse::button(1002, 2), std::nullopt);
}

}  // namespace
}  // namespace vistrel
