// The capture tool walks the Dock's and WindowManager's trees as the readers read them: with
// their 0.3 s time-out on every element, never the 0.2 s the hit test set as the default of
// every element without one of its own.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/sim/sim_presentation.h"
#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "tracking/ax.h"
#include "tracking/mission_control_capture.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel {
namespace {

class CaptureTimeoutsTest : public testing::SimTest {
  protected:
    CaptureTimeoutsTest() { populateDefaultScene(desktop); }

    // The time-outs the calls that reached the process waited under.
    std::set<float> timeoutsOf(Pid pid) {
        std::set<float> seen;
        for (const auto& call : desktop.accessibility().timedCalls())
            if (call.pid == pid) seen.insert(call.timeout);
        return seen;
    }

    // A group the readers pass over (a Spaces bar) with a button in it: only the capture's
    // walk reaches the button, so only the walk can give it its time-out.
    void addSpacesBar(Pid host) {
        SimAccessibility& ax = desktop.accessibility();
        const AXElement button = ax.nodeElement(ax.addNode(
            host, {{"AXRole", std::string("AXButton")}, {"AXFrame", Rect{10, 10, 90, 50}}}));
        const AXElement bar =
            ax.nodeElement(ax.addNode(host, {{"AXRole", std::string("AXGroup")},
                                             {"AXIdentifier", std::string("mc.spaces")},
                                             {"AXChildren", std::vector<AXElement>{button}}}));
        ax.applicationChildren[host].push_back(bar);
    }

    // One capture of what is open, once the hit test's 0.2 s is every element's default (as
    // after the first hover). The hit tests answer nothing, so that only the walk and the
    // readers ask the host.
    nlohmann::json capture() {
        AX::systemWide();
        desktop.accessibility().recordTimeouts = true;
        desktop.accessibility().hitTestOverride = [](Point) -> std::optional<AXElement> {
            return std::nullopt;
        };
        return MissionControlCapture::snapshot(false, nlohmann::json::array());
    }
};

TEST_F(CaptureTimeoutsTest, EveryElementOfTheDocksTreeTheCaptureWalksWaitsAtMostThreeTenths) {
    desktop.dock().open();
    addSpacesBar(desktop.dock().pid());
    const nlohmann::json written = capture();
    ASSERT_EQ(written["dock"]["groups"].size(), 2u);
    EXPECT_EQ(timeoutsOf(desktop.dock().pid()), (std::set<float>{ThumbnailReader::dockTimeout}));
}

TEST_F(CaptureTimeoutsTest, EveryElementOfWindowManagersTreeTheCaptureWalksWaitsAtMostThreeTenths) {
    present(desktop, SimPresentation::numberedThumbnails);
    desktop.dock().open();
    addSpacesBar(desktop.dock().windowManagerPid());
    const nlohmann::json written = capture();
    ASSERT_EQ(written["windowManager"]["groups"].size(), 2u);
    EXPECT_EQ(timeoutsOf(desktop.dock().windowManagerPid()),
              (std::set<float>{WindowManagerThumbnails::timeout}));
    EXPECT_EQ(timeoutsOf(desktop.dock().pid()), (std::set<float>{ThumbnailReader::dockTimeout}));
}

}  // namespace
}  // namespace vistrel
