// The status panel's readiness row names, in plain words, the most pressing thing that keeps
// Vistrel from working on this Mac, and offers the one step that helps.
#include <gtest/gtest.h>

#include <algorithm>

#include "status_menu_fixture.h"
#include "tracking/health.h"
#include "ui/kit/dfkit_row.h"

namespace vistrel::testing {
namespace {

constexpr std::string_view accessibilityPane =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

class ReadinessRowTest : public StatusMenuTest {
  protected:
    std::vector<std::string> labels() {
        std::vector<std::string> out;
        for (const auto& node : panel().accessibilityNodes())
            out.push_back(node.label);
        return out;
    }
    bool shows(const std::string& label) {
        const auto all = labels();
        return std::find(all.begin(), all.end(), label) != all.end();
    }
    static void failOpenings() {
        MissionControlReading nothingRead;
        nothingRead.host = MissionControlHost::dock;
        nothingRead.windows = 4;
        for (int i = 0; i < SelfCheck::failuresToTell; ++i)
            Health::shared().openingEnded(nothingRead, 0);
    }
};

TEST_F(ReadinessRowTest, AStaleGrantAsksForAccessibilityAgainAndOpensThePane) {
    Health::shared().setStaleGrant(true);
    open();
    EXPECT_TRUE(shows("Accessibility needs to be granted again"));
    EXPECT_FALSE(shows("Ready in Mission Control"));
    clickLabelled("Open System Settings…");
    ASSERT_EQ(desktop.workspace().openedURLs.size(), 1u);
    EXPECT_EQ(desktop.workspace().openedURLs[0], accessibilityPane);
    EXPECT_EQ(desktop.trustPrompts, 0) << "the system already counts the grant as given";
}

TEST_F(ReadinessRowTest, AStaleGrantsHintSaysToRemoveVistrelFromTheListAndAddItAgain) {
    Health::shared().setStaleGrant(true);
    open();
    const auto nodes = panel().accessibilityNodes();
    const auto row = std::find_if(nodes.begin(), nodes.end(), [](const AccessibilityNode& node) {
        return node.label == "Accessibility needs to be granted again";
    });
    ASSERT_NE(row, nodes.end());
    EXPECT_NE(row->help.find("Remove Vistrel from the list"), std::string::npos);
}

TEST_F(ReadinessRowTest, AMissionControlThatCannotBeReadOffersToSendACapture) {
    failOpenings();
    int captures = 0;
    controller->sendCapture = [&captures] { ++captures; };
    open();
    EXPECT_TRUE(shows("Vistrel can't read Mission Control on this Mac"));
    clickLabelled("Send a Capture…");
    EXPECT_EQ(captures, 1);
    EXPECT_FALSE(panelOpen());
}

TEST_F(ReadinessRowTest, WhileACaptureWaitsTheRowSaysToOpenMissionControlAndOffersNoButton) {
    failOpenings();
    Health::shared().setCaptureWaiting(true);
    open();
    EXPECT_TRUE(shows("Vistrel can't read Mission Control on this Mac"));
    EXPECT_FALSE(shows("Send a Capture…"));
}

TEST_F(ReadinessRowTest, ATapTheSystemKeepsSwitchingOffIsShownAsAProblem) {
    Health::shared().setTapUnsteady(true);
    open();
    EXPECT_TRUE(shows("macOS keeps pausing Vistrel's shortcuts"));
    EXPECT_FALSE(shows("Ready in Mission Control"));
}

TEST_F(ReadinessRowTest, AMissingGrantIsToldBeforeAnyOtherProblem) {
    Health::shared().setStaleGrant(true);
    failOpenings();
    desktop.trusted = false;
    open();
    EXPECT_TRUE(shows("Allow Accessibility"));
    EXPECT_FALSE(shows("Accessibility needs to be granted again"));
    EXPECT_FALSE(shows("Vistrel can't read Mission Control on this Mac"));
}

TEST_F(ReadinessRowTest, AStaleGrantIsToldBeforeAMissionControlItCannotRead) {
    failOpenings();
    Health::shared().setStaleGrant(true);
    open();
    EXPECT_TRUE(shows("Accessibility needs to be granted again"));
    EXPECT_FALSE(shows("Vistrel can't read Mission Control on this Mac"));
}

TEST_F(ReadinessRowTest, ALongProblemTitleWrapsInsideThePanel) {
    failOpenings();
    open();
    for (const auto& row : controller->panel()->content().rows()) {
        const auto* status = dynamic_cast<const DFKitRow*>(row.get());
        if (status == nullptr) continue;
        EXPECT_LE(status->titleRect().maxX(), row->bounds().width);
        EXPECT_GT(status->titleRect().height, 17) << "two lines";
        EXPECT_GE(status->detailRect().minY(), status->titleRect().maxY());
    }
}

}  // namespace
}  // namespace vistrel::testing
