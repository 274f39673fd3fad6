#include "settings/accessibility_pane.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel {
namespace {

using AccessibilityPaneTest = testing::SimTest;

TEST_F(AccessibilityPaneTest, OpensTheAccessibilityPrivacyList) {
    AccessibilityPane::open();
    ASSERT_EQ(desktop.workspace().openedURLs.size(), 1u);
    EXPECT_EQ(desktop.workspace().openedURLs.front(),
              "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility");
}

}  // namespace
}  // namespace vistrel
