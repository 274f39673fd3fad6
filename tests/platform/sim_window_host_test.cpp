#include "platform/sim/sim_window_host.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(SimWindowHost, AWindowRemembersWhetherItWasMadeAtOnceOrDeferred) {
    SimWindowHost host;

    const auto immediate = host.makeWindow(WindowDeferral::immediate);
    const auto deferred = host.makeWindow(WindowDeferral::deferred);

    ASSERT_EQ(host.windows().size(), 2u);
    EXPECT_EQ(host.windows()[0]->deferral(), WindowDeferral::immediate);
    EXPECT_EQ(host.windows()[1]->deferral(), WindowDeferral::deferred);
}

TEST(SimWindowHost, AWindowHasNoGlassUntilGivenSomeWithItsCornerRadius) {
    SimWindowHost host;
    const auto window = host.makeWindow(WindowDeferral::immediate);
    EXPECT_EQ(host.windows().front()->glassRadius(), std::nullopt);

    window->setGlass(14);

    EXPECT_EQ(host.windows().front()->glassRadius(), 14);
}

TEST(SimWindowHost, AFreedWindowIsNoLongerListed) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::immediate);

    window.reset();

    EXPECT_TRUE(host.windows().empty());
    EXPECT_EQ(host.windowsMade(), 1);
}

}  // namespace
}  // namespace vistrel
