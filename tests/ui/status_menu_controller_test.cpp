#include <gtest/gtest.h>

#include <algorithm>

#include "layouts/layout_store.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"
#include "ui/kit/dfkit_key_row.h"
#include "ui/kit/dfkit_menu_row.h"

namespace vistrel::testing {
namespace {

std::vector<std::string> labels(const std::vector<AccessibilityNode>& nodes) {
    std::vector<std::string> out;
    for (const auto& node : nodes)
        out.push_back(node.label);
    return out;
}

bool has(const std::vector<std::string>& all, const std::string& wanted) {
    return std::find(all.begin(), all.end(), wanted) != all.end();
}

SavedLayout layoutNamed(const std::string& name) {
    return {{}, name, {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}}, 0};
}

using StatusItemTest = StatusMenuTest;

TEST_F(StatusItemTest, ShowsTheMarkAsASixteenPointTemplateLabelledVistrel) {
    EXPECT_EQ(item().accessibilityLabel(), "Vistrel");
    EXPECT_EQ(item().imageSize(), (Size{16, 16}));
    ASSERT_TRUE(item().image());
    EXPECT_EQ(item().image()->all<DisplayList::Fill>().size(), 1u);
    EXPECT_TRUE(item().isVisible());
}

TEST_F(StatusItemTest, StaysHiddenWhenThePreferencesHideIt) {
    Shared::store()->set(std::string(PreferenceKey::menuBarIconHidden), true);
    auto hidden = StatusMenuController::make();
    EXPECT_FALSE(hidden->item()->isVisible());
}

TEST_F(StatusItemTest, AClickOpensThePanelUnderTheItemAndHighlightsIt) {
    clickItem();
    ASSERT_TRUE(panelOpen());
    EXPECT_TRUE(panel().isKey());
    EXPECT_TRUE(item().highlighted());
    const Rect button = *item().buttonFrame();
    EXPECT_DOUBLE_EQ(panel().frame().maxY(), button.minY() - 6);
}

TEST_F(StatusItemTest, ASecondClickAFifthOfASecondLaterClosesAndAThirdLaterOpensAgain) {
    clickItem(0.1);
    ASSERT_TRUE(panelOpen());
    clickItem(0.3);
    EXPECT_FALSE(panelOpen());
    EXPECT_FALSE(item().highlighted());
    clickItem();
    EXPECT_TRUE(panelOpen());
}

TEST_F(StatusItemTest, TheClickThatClosedThePanelByTakingTheKeyboardDoesNotReopenIt) {
    clickItem();
    panel().resignKey();  // the status bar takes the click first
    item().click();
    EXPECT_FALSE(panelOpen());
    desktop.executor().advance(0.3);
    item().click();
    EXPECT_TRUE(panelOpen());
}

using StatusPanelRowsTest = StatusMenuTest;

TEST_F(StatusPanelRowsTest, ListsEveryRowInOrderWhenTrusted) {
    Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
    controller->reportProblem = [] {};
    open();
    const std::vector<std::string> expected = {"Vistrel",
                                               "More options",
                                               "Ready in Mission Control",
                                               "Shortcuts in Mission Control",
                                               "Close window",
                                               "Close all windows of the app",
                                               "Minimize window",
                                               "Full screen / maximize window",
                                               "Hide app",
                                               "Hide other apps",
                                               "Force-quit app",
                                               "Layouts",
                                               "Save Current Layout",
                                               "Settings",
                                               "Welcome Guide…",
                                               "About Vistrel",
                                               "Report a Problem…",
                                               "Quit Vistrel"};
    EXPECT_EQ(labels(panel().accessibilityNodes()), expected);
}

TEST_F(StatusPanelRowsTest, ListsRolesForRowsSwitchesAndButtons) {
    open();
    for (const AccessibilityNode& node : panel().accessibilityNodes()) {
        if (node.label == "Close window") {
            EXPECT_EQ(node.role, "AXCheckBox");
            EXPECT_EQ(node.value, true);
        }
        if (node.label == "Quit Vistrel" || node.label == "More options") {
            EXPECT_EQ(node.role, "AXButton");
        }
        if (node.label == "Ready in Mission Control") {
            EXPECT_EQ(node.role, "AXStaticText");
        }
        EXPECT_TRUE(node.role == "AXStaticText" || node.press) << node.label;
    }
}

TEST_F(StatusPanelRowsTest, AsksForAccessibilityWithAButtonWhenNotTrusted) {
    desktop.trusted = false;
    open();
    const auto all = labels(panel().accessibilityNodes());
    EXPECT_TRUE(has(all, "Allow Accessibility"));
    EXPECT_FALSE(has(all, "Ready in Mission Control"));
    clickLabelled("Open System Settings…");
    EXPECT_EQ(desktop.trustPrompts, 1);
    EXPECT_FALSE(panelOpen());
}

TEST_F(StatusPanelRowsTest, ShowsTheShortcutKeysOfEveryHotkey) {
    open();
    std::vector<std::string> keys;
    for (const auto& row : controller->panel()->content().rows()) {
        if (auto* keyRow = dynamic_cast<DFKitKeyRow*>(row.get())) keys.push_back(keyRow->keys());
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"⌘W", "⌥⌘W", "⌘M", "⌘F", "⌘H", "⌥⌘H", "⌘Q"}));
}

TEST_F(StatusPanelRowsTest, LeavesOutTheLayoutsSectionWhenLayoutsAreOff) {
    Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), false);
    open();
    EXPECT_FALSE(has(labels(panel().accessibilityNodes()), "Save Current Layout"));
}

TEST_F(StatusPanelRowsTest, WithoutSavedLayoutsShowsOnlyTheLabelAndSave) {
    Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
    open();
    int layoutRows = 0;
    for (const auto& row : controller->panel()->content().rows()) {
        if (auto* menuRow = dynamic_cast<DFKitMenuRow*>(row.get());
            menuRow && menuRow->glyph() == DFKitGlyph::apps)
            ++layoutRows;
    }
    EXPECT_EQ(layoutRows, 0);
    EXPECT_TRUE(has(labels(panel().accessibilityNodes()), "Save Current Layout"));
}

TEST_F(StatusPanelRowsTest, TenSavedLayoutsShowTheFirstNineInStoreOrder) {
    Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
    for (int i = 1; i <= 10; ++i)
        LayoutStore::add(*Shared::store(), layoutNamed("Layout " + std::to_string(i)));
    open();
    std::vector<std::string> shown;
    for (int i = 1; i <= 10; ++i) {
        if (viewLabelled("Layout " + std::to_string(i)))
            shown.push_back("Layout " + std::to_string(i));
    }
    ASSERT_EQ(shown.size(), 9u);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(shown[i], "Layout " + std::to_string(i + 1));
}

TEST_F(StatusPanelRowsTest, LeavesOutTheUpdateAndReportRowsWithoutThoseFeatures) {
    open();
    const auto all = labels(panel().accessibilityNodes());
    EXPECT_FALSE(has(all, "Check for Updates…"));
    EXPECT_FALSE(has(all, "Report a Problem…"));
}

TEST_F(StatusPanelRowsTest, ChecksForUpdatesInFrontWhenThereIsAnUpdater) {
    int checks = 0;
    controller->updater =
        StatusMenuController::Updater{[&] { ++checks; }, [] { return false; }, [](bool) {}};
    open();
    clickLabelled("Check for Updates…");
    EXPECT_EQ(checks, 1);
    EXPECT_EQ(desktop.application().activations(), 1);
    EXPECT_FALSE(panelOpen());
}

TEST_F(StatusPanelRowsTest, EveryRowActionClosesThePanelFirst) {
    bool panelWasOpen = true;
    controller->openAbout = [&] { panelWasOpen = panelOpen(); };
    open();
    clickLabelled("About Vistrel");
    EXPECT_FALSE(panelWasOpen);
}

TEST_F(StatusPanelRowsTest, QuitTerminatesTheAgent) {
    open();
    clickLabelled("Quit Vistrel");
    EXPECT_TRUE(desktop.application().terminated());
}

TEST_F(StatusPanelRowsTest, AnActionWhoseControllerIsGoneDoesNothing) {
    open();
    DFKitView* quit = viewLabelled("Quit Vistrel");
    ASSERT_NE(quit, nullptr);
    auto node = quit->accessibilityNode();
    std::weak_ptr<StatusMenuController> weak = controller;
    auto keep = std::move(controller);
    auto rows = keep->rows();
    keep.reset();
    ASSERT_TRUE(weak.expired());
    for (const auto& row : rows) {
        if (auto n = row->accessibilityNode(); n && n->label == "Quit Vistrel") n->press();
    }
    EXPECT_FALSE(desktop.application().terminated());
}

using HotkeySwitchTest = StatusMenuTest;

TEST_F(HotkeySwitchTest, ASwitchTurnedOffWritesTheKeyAtOnceAndShowsOffNextTime) {
    open();
    clickLabelled("Hide app");
    EXPECT_EQ(Shared::store()->object("hotkey.hide.disabled"), DefaultsValue(true));
    clickItem();  // close
    clickItem();  // open again
    for (const AccessibilityNode& node : panel().accessibilityNodes()) {
        if (node.label == "Hide app") {
            EXPECT_EQ(node.value, false);
        }
        if (node.label == "Close window") {
            EXPECT_EQ(node.value, true);
        }
    }
}

TEST_F(HotkeySwitchTest, TurningItBackOnWritesFalse) {
    Shared::store()->set("hotkey.kill.disabled", true);
    open();
    clickLabelled("Force-quit app");
    EXPECT_EQ(Shared::store()->object("hotkey.kill.disabled"), DefaultsValue(false));
}

TEST_F(HotkeySwitchTest, AClickAnywhereOnTheRowFlipsItsSwitch) {
    open();
    DFKitView* row = viewLabelled("Minimize window")->superview();
    panel().click({row->frameInRoot().x + 100, row->frameInRoot().midY()});
    EXPECT_EQ(Shared::store()->object("hotkey.minimize.disabled"), DefaultsValue(true));
}

using KeyMonitorTest = StatusMenuTest;

TEST_F(KeyMonitorTest, CommandCommaClosesThePanelAndOpensSettings) {
    int opened = 0;
    controller->openSettings = [&] { ++opened; };
    open();
    EXPECT_TRUE(desktop.eventMonitors().pressKey({",", 0x100000}));
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(panelOpen());
}

TEST_F(KeyMonitorTest, CommandQQuits) {
    open();
    EXPECT_TRUE(desktop.eventMonitors().pressKey({"q", 0x100000}));
    EXPECT_TRUE(desktop.application().terminated());
}

TEST_F(KeyMonitorTest, CommandShiftQDoesNotQuit) {
    open();
    EXPECT_FALSE(desktop.eventMonitors().pressKey({"q", 0x100000 | 0x20000}));
    EXPECT_FALSE(desktop.application().terminated());
}

TEST_F(KeyMonitorTest, OtherKeysPassAndTheMonitorGoesWithThePanel) {
    open();
    EXPECT_FALSE(desktop.eventMonitors().pressKey({"w", 0x100000}));
    EXPECT_EQ(desktop.eventMonitors().keyMonitors(), 1u);
    panel().pressEscape();
    EXPECT_EQ(desktop.eventMonitors().keyMonitors(), 0u);
    EXPECT_FALSE(desktop.eventMonitors().pressKey({"q", 0x100000}));
}

using MoreOptionsTest = StatusMenuTest;

TEST_F(MoreOptionsTest, OpensANativeMenuAtTheDotsButton) {
    open();
    clickLabelled("More options");
    ASSERT_TRUE(desktop.menus().openMenu());
    EXPECT_TRUE(panelOpen());
    const auto& items = desktop.menus().openMenu()->items;
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].title, "Start at Login");
    EXPECT_TRUE(items[1].separator);
    EXPECT_EQ(items[2].title, "Hide This Menu Item");
    EXPECT_EQ(items[2].toolTip, "Open Vistrel again from Applications to bring it back.");
}

TEST_F(MoreOptionsTest, StartAtLoginShowsTheLoginItemsThreeStates) {
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    EXPECT_EQ(controller->moreMenuItems()[0].state, MenuItemState::on);
    desktop.loginItem().setStatus(LoginItemStatus::notFound);
    EXPECT_EQ(controller->moreMenuItems()[0].state, MenuItemState::off);
}

TEST_F(MoreOptionsTest, AwaitingApprovalShowsMixedAndChoosingItTurnsLaunchAtLoginOff) {
    desktop.loginItem().setStatus(LoginItemStatus::requiresApproval);
    open();
    clickLabelled("More options");
    EXPECT_EQ(desktop.menus().openMenu()->items[0].state, MenuItemState::mixed);
    ASSERT_TRUE(desktop.menus().choose("Start at Login"));
    EXPECT_EQ(desktop.loginItem().status(), LoginItemStatus::notRegistered);
}

TEST_F(MoreOptionsTest, StartAtLoginWhenOffTurnsItOn) {
    open();
    clickLabelled("More options");
    ASSERT_TRUE(desktop.menus().choose("Start at Login"));
    EXPECT_EQ(desktop.loginItem().status(), LoginItemStatus::enabled);
}

TEST_F(MoreOptionsTest, HideThisMenuItemHidesItAndRemembers) {
    open();
    clickLabelled("More options");
    ASSERT_TRUE(desktop.menus().choose("Hide This Menu Item"));
    EXPECT_FALSE(panelOpen());
    EXPECT_FALSE(item().isVisible());
    EXPECT_EQ(Shared::store()->object("menuBarIconHidden"), DefaultsValue(true));
}

TEST_F(MoreOptionsTest, InstallUpdatesAutomaticallyOnlyWithAnUpdaterAndFlipsIt) {
    bool automatic = true;
    controller->updater = StatusMenuController::Updater{[] {}, [&] { return automatic; },
                                                        [&](bool on) { automatic = on; }};
    const auto items = controller->moreMenuItems();
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[1].title, "Install Updates Automatically");
    EXPECT_EQ(items[1].state, MenuItemState::on);
    items[1].handler();
    EXPECT_FALSE(automatic);
}

}  // namespace
}  // namespace vistrel::testing
