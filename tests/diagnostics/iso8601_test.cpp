#include "base/iso8601.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(Iso8601, FormatsUtcWithMilliseconds) {
    EXPECT_EQ(iso8601(1'794'712'742.123), "2026-11-15T03:19:02.123Z");
}

TEST(Iso8601, FormatsTheEpoch) {
    EXPECT_EQ(iso8601(0), "1970-01-01T00:00:00.000Z");
}

TEST(Iso8601, TruncatesBelowAMillisecondRatherThanRoundingIntoTheNextSecond) {
    EXPECT_EQ(iso8601(59.9999), "1970-01-01T00:00:59.999Z");
}

TEST(Iso8601, HandlesLeapDays) {
    EXPECT_EQ(iso8601(951'782'400.5), "2000-02-29T00:00:00.500Z");
}

}  // namespace
}  // namespace vistrel
