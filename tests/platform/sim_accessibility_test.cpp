#include "platform/sim/sim_accessibility.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel {
namespace {

class SimAccessibilityTest : public testing::SimTest {
  protected:
    SimAccessibilityTest() {
        pid = desktop.addApplication({0, "com.example.app", "App"});
        SimWindow window;
        window.frame = {100, 100, 400, 300};
        id = desktop.addWindow(pid, window);
    }
    SimAccessibility& ax() { return desktop.accessibility(); }

    Pid pid = 0;
    SimWindowId id = 0;
};

TEST_F(SimAccessibilityTest, ElementsWaitTheSystemDefaultUntilATimeoutIsSet) {
    EXPECT_FLOAT_EQ(ax().messagingTimeout(ax().windowElement(id)),
                    SimAccessibility::defaultTimeout);
}

TEST_F(SimAccessibilityTest, TimeoutOnTheSystemWideElementIsProcessWide) {
    ax().setMessagingTimeout(ax().systemWide(), 0.2f);
    EXPECT_FLOAT_EQ(ax().messagingTimeout(ax().windowElement(id)), 0.2f);
}

// AXUIElementSetMessagingTimeout: the system-wide element's time-out is the default of
// every element; any other element's is its own.
TEST_F(SimAccessibilityTest, AnApplicationsTimeoutIsItsOwnAndItsWindowsTakeTheDefault) {
    ax().setMessagingTimeout(ax().systemWide(), 0.2f);
    ax().setMessagingTimeout(ax().application(pid), 0.3f);
    EXPECT_FLOAT_EQ(ax().messagingTimeout(ax().application(pid)), 0.3f);
    EXPECT_FLOAT_EQ(ax().messagingTimeout(ax().windowElement(id)), 0.2f);
    ax().setMessagingTimeout(ax().windowElement(id), 1.0f);
    EXPECT_FLOAT_EQ(ax().messagingTimeout(ax().windowElement(id)), 1.0f);
}

TEST_F(SimAccessibilityTest, HungApplicationTimesOutInVirtualTime) {
    desktop.application(pid)->hung = true;
    ax().setMessagingTimeout(ax().windowElement(id), 0.5f);
    const double start = desktop.clock().now();
    AXValue value;
    EXPECT_EQ(ax().copyAttribute(ax().windowElement(id), "AXTitle", value),
              AXError::cannotComplete);
    EXPECT_NEAR(desktop.clock().now() - start, 0.5, 1e-6);
}

TEST_F(SimAccessibilityTest, RevokedGrantDisablesTheInterface) {
    desktop.trusted = false;
    AXValue value;
    AXElement hit;
    EXPECT_EQ(ax().copyAttribute(ax().windowElement(id), "AXTitle", value), AXError::apiDisabled);
    EXPECT_EQ(ax().elementAtPosition(ax().systemWide(), {200, 200}, hit), AXError::apiDisabled);
    EXPECT_FALSE(ax().isProcessTrusted());
}

TEST_F(SimAccessibilityTest, HitInTheTitleBarIsTheTitleElsewhereTheWindow) {
    AXElement hit;
    ASSERT_EQ(ax().elementAtPosition(ax().systemWide(), {200, 110}, hit), AXError::success);
    EXPECT_EQ(hit, ax().partElement(id, SimWindowPart::title));
    ASSERT_EQ(ax().elementAtPosition(ax().systemWide(), {200, 300}, hit), AXError::success);
    EXPECT_EQ(hit, ax().windowElement(id));
    EXPECT_EQ(ax().elementAtPosition(ax().systemWide(), {900, 800}, hit), AXError::noValue);
}

}  // namespace
}  // namespace vistrel
