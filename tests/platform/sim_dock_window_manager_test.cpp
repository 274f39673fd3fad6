// The simulated Mission Control as macOS 27 shows it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

class SimDockWindowManagerTest : public testing::SimTest {
  protected:
    SimDockWindowManagerTest() {
        desktop.systemInfo().version = {27, 0, 0};
        populateDefaultScene(desktop);
    }

    AXValue read(const AXElement& element, const std::string& attribute) {
        AXValue value;
        desktop.accessibility().copyAttribute(element, attribute, value);
        return value;
    }
    std::vector<AXElement> children(const AXElement& element) {
        const AXValue value = read(element, "AXChildren");
        const auto* list = std::get_if<std::vector<AXElement>>(&value);
        return list ? *list : std::vector<AXElement>{};
    }
    std::string identifier(const AXElement& element) {
        const AXValue value = read(element, "AXIdentifier");
        const auto* text = std::get_if<std::string>(&value);
        return text ? *text : std::string();
    }
    std::vector<WindowDescription> dockWindows() {
        std::vector<WindowDescription> dock;
        const auto list = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
        for (const WindowDescription& window : *list) {
            if (window.ownerName == "Dock") dock.push_back(window);
        }
        return dock;
    }
};

TEST_F(SimDockWindowManagerTest, TheDockKeepsAnEmptyMissionControlGroupWhileOpen) {
    desktop.dock().open();
    const auto dock = children(desktop.accessibility().application(desktop.dock().pid()));
    ASSERT_EQ(dock.size(), 2u);
    EXPECT_EQ(identifier(dock[1]), "mc");
    EXPECT_TRUE(children(dock[1]).empty());
    desktop.dock().close();
    EXPECT_EQ(children(desktop.accessibility().application(desktop.dock().pid())).size(), 1u);
}

TEST_F(SimDockWindowManagerTest, WindowManagerListsThumbnailsWithWindowNumbersAndOtherDesktops) {
    desktop.dock().open();
    const AXElement windowManager =
        desktop.accessibility().application(desktop.dock().windowManagerPid());
    const auto displays = children(windowManager);
    ASSERT_EQ(displays.size(), 1u);
    EXPECT_EQ(identifier(displays[0]), "mc.display");
    const auto inside = children(displays[0]);
    const std::size_t shown = desktop.dock().thumbnails().size();
    ASSERT_EQ(inside.size(), shown + desktop.dock().otherDesktop.size() + 1);
    EXPECT_EQ(identifier(inside.back()), "mc.spaces");
    for (std::size_t i = 0; i < shown; ++i) {
        const SimThumbnail& thumbnail = desktop.dock().thumbnails()[i];
        const SimApplication& app = *desktop.application(desktop.window(thumbnail.window)->pid);
        EXPECT_EQ(identifier(inside[i]), app.bundleIdentifier + ".space.1");
        EXPECT_EQ(read(inside[i], "wid"), AXValue(static_cast<std::int64_t>(thumbnail.window)));
        EXPECT_EQ(read(inside[i], "AXFrame"), AXValue(thumbnail.frame));
    }
    const AXElement other = inside[shown];
    EXPECT_EQ(identifier(other), "com.apple.dt.Xcode.space.2");
    const Rect otherFrame = std::get<Rect>(read(other, "AXFrame"));
    EXPECT_FALSE(otherFrame.intersection(desktop.dock().thumbnails()[0].frame).isEmpty());
}

TEST_F(SimDockWindowManagerTest, OtherDesktopsAreListedOnTheFirstDisplayOnly) {
    desktop.addScreenToTheRight({1920, 1080});
    desktop.dock().open();
    const auto displays =
        children(desktop.accessibility().application(desktop.dock().windowManagerPid()));
    ASSERT_EQ(displays.size(), 2u);
    std::size_t others = 0;
    for (const AXElement& display : displays) {
        for (const AXElement& child : children(display))
            others += identifier(child).ends_with(".space.2") ? 1 : 0;
    }
    EXPECT_EQ(others, desktop.dock().otherDesktop.size());
}

TEST_F(SimDockWindowManagerTest, NoLayer18WindowAndAFullScreenLayer20WindowThatStays) {
    EXPECT_EQ(dockWindows().size(), 1u);  // the bar
    desktop.dock().open();
    for (const WindowDescription& window : dockWindows())
        EXPECT_NE(window.layer, 18);
    desktop.dock().close();
    const auto after = dockWindows();
    ASSERT_EQ(after.size(), 2u);
    EXPECT_EQ(after[0].layer, 20);
    EXPECT_EQ(after[0].bounds, simPrimaryScreen);
}

TEST_F(SimDockWindowManagerTest, HitTestOverAThumbnailAnswersWindowManagersButton) {
    desktop.dock().open();
    const SimThumbnail thumbnail = desktop.dock().thumbnails().front();
    AXElement hit;
    ASSERT_EQ(desktop.accessibility().elementAtPosition(desktop.accessibility().systemWide(),
                                                        thumbnail.frame.mid(), hit),
              AXError::success);
    Pid owner = 0;
    desktop.accessibility().pid(hit, owner);
    EXPECT_EQ(owner, desktop.dock().windowManagerPid());
    EXPECT_EQ(read(hit, "wid"), AXValue(static_cast<std::int64_t>(thumbnail.window)));
}

TEST_F(SimDockWindowManagerTest, EscapeLeavesAndTheTreeGoes) {
    desktop.dock().open();
    desktop.windowServer().postKey(SimDock::escapeKeyCode, true);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_TRUE(
        children(desktop.accessibility().application(desktop.dock().windowManagerPid())).empty());
}

}  // namespace
}  // namespace vistrel
