#include "diagnostics/diagnostics.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "layouts/layout_store.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"
#include "tracking/health.h"

namespace vistrel {
namespace {

class DiagnosticsTest : public testing::SimTest {
  protected:
    std::vector<std::string> lines() {
        std::vector<std::string> result;
        std::istringstream text(Diagnostics::text());
        for (std::string line; std::getline(text, line);)
            result.push_back(line);
        return result;
    }
    std::string line(std::size_t index) { return lines().at(index); }
    void set(std::string_view key, const DefaultsValue& value) {
        Shared::store()->set(std::string(key), value);
    }
};

TEST_F(DiagnosticsTest, TextListsEveryItemInOrderOneLineEach) {
    EXPECT_EQ(Diagnostics::text(),
              "Vistrel 1.0 (1)\n"
              "macOS Version 15.1 (Build 24B83), Mac15,3, 8 cores\n"
              "Running from: /Applications/Vistrel.app\n"
              "Accessibility trusted: true\n"
              "Start at login: false\n"
              "Buttons: close, size 25, theme classic, maximize fullscreen\n"
              "Layouts: on, shelf on, gap 0, saved 0\n"
              "Shortcuts off: none\n"
              "Displays have separate Spaces: true\n"
              "Displays:\n"
              "  Built-in Retina Display frame (0, 0, 1440, 900) visible (0, 70, 1440, 805) "
              "scale 2 (main)\n"
              "Accessibility grant stale: false\n"
              "Mission Control self-check: no opening yet, failed openings in a row 0\n"
              "Event tap switched off often: false\n");
}

TEST_F(DiagnosticsTest, TheSelfChecksLastResultsGoIntoEveryReport) {
    Health::shared().setStaleGrant(true);
    MissionControlReading reading;
    reading.host = MissionControlHost::windowManager;
    reading.thumbnails = 7;
    reading.windows = 7;
    reading.refusals = 2;
    Health::shared().openingEnded(reading, 1);
    const std::vector<std::string> all = lines();
    ASSERT_GE(all.size(), 3u);
    EXPECT_EQ(all[all.size() - 3], "Accessibility grant stale: true");
    EXPECT_EQ(all[all.size() - 2],
              "Mission Control self-check: host WindowManager, thumbnails 7, windows 7, mapped 0, "
              "refusals 2, failed openings in a row 1");
    EXPECT_EQ(all[all.size() - 1], "Event tap switched off often: false");
    Health::shared().setTapUnsteady(true);
    EXPECT_EQ(lines().back(), "Event tap switched off often: true");
}

TEST_F(DiagnosticsTest, ValuesAreReadAtTheMomentOfTheCall) {
    EXPECT_EQ(line(0), "Vistrel 1.0 (1)");
    desktop.bundle.version = "2.3";
    desktop.bundle.build = "417";
    desktop.trusted = false;
    EXPECT_EQ(line(0), "Vistrel 2.3 (417)");
    EXPECT_EQ(line(3), "Accessibility trusted: false");
}

TEST_F(DiagnosticsTest, SystemLineNamesTheVersionModelAndCores) {
    desktop.systemInfo().versionString = "Version 26.0 (Build 25A100)";
    desktop.systemInfo().model = "Mac16,1";
    desktop.systemInfo().processors = 12;
    EXPECT_EQ(line(1), "macOS Version 26.0 (Build 25A100), Mac16,1, 12 cores");
}

TEST_F(DiagnosticsTest, UnreadableHardwareModelIsAQuestionMark) {
    desktop.systemInfo().model.reset();
    EXPECT_EQ(line(1), "macOS Version 15.1 (Build 24B83), ?, 8 cores");
}

TEST_F(DiagnosticsTest, StartAtLoginIsTrueOnlyWhenEnabled) {
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    EXPECT_EQ(line(4), "Start at login: true");
    desktop.loginItem().setStatus(LoginItemStatus::notFound);
    EXPECT_EQ(line(4), "Start at login: false");
}

TEST_F(DiagnosticsTest, StartAtLoginWaitingForApprovalSaysSo) {
    desktop.loginItem().setStatus(LoginItemStatus::requiresApproval);
    EXPECT_EQ(line(4), "Start at login: false (needs approval)");
}

TEST_F(DiagnosticsTest, ButtonsLineNamesButtonsSizeThemeAndMaximizeMode) {
    set(PreferenceKey::showMinimizeButton, true);
    set(PreferenceKey::showMaximizeButton, true);
    set(PreferenceKey::buttonSizeOption, "large");
    set(PreferenceKey::buttonTheme, "graphite");
    set(PreferenceKey::maximizeMode, "fill");
    EXPECT_EQ(line(5),
              "Buttons: close, minimize, maximize, size 32, theme graphite, maximize fill");
}

TEST_F(DiagnosticsTest, UnknownThemeReadsAsClassic) {
    set(PreferenceKey::buttonTheme, "Neon");
    EXPECT_EQ(line(5), "Buttons: close, size 25, theme classic, maximize fullscreen");
}

TEST_F(DiagnosticsTest, LayoutsLineClampsTheGapAndCountsSavedLayouts) {
    set(PreferenceKey::layoutsEnabled, false);
    set(PreferenceKey::layoutsShelf, false);
    set(PreferenceKey::layoutsGap, 55.0);
    SavedLayout layout;
    layout.name = "Writing";
    LayoutStore::add(*Shared::store(), layout);
    layout.id = UUID::random();
    LayoutStore::add(*Shared::store(), layout);
    EXPECT_EQ(line(6), "Layouts: off, shelf off, gap 40, saved 2");
}

TEST_F(DiagnosticsTest, ShortcutsOffAreListedInEnumerationOrder) {
    set(Shared::Key::hotkeyDisabled(Hotkey::kill), true);
    set(Shared::Key::hotkeyDisabled(Hotkey::closeAll), true);
    set(Shared::Key::hotkeyDisabled(Hotkey::hide), false);
    EXPECT_EQ(line(7), "Shortcuts off: closeAll, kill");
}

TEST_F(DiagnosticsTest, SeparateSpacesFollowTheSystemSetting) {
    desktop.separateSpaces = false;
    EXPECT_EQ(line(8), "Displays have separate Spaces: false");
}

TEST_F(DiagnosticsTest, EveryScreenHasALineAndOnlyTheMainOneIsMarked) {
    desktop.addScreenToTheRight({2560, 1440});
    desktop.screens()[1].backingScaleFactor = 1;
    desktop.mainScreenIndex = 1;
    const std::vector<std::string> all = lines();
    ASSERT_EQ(all.size(), 15u);
    EXPECT_EQ(all[9], "Displays:");
    EXPECT_EQ(
        all[10],
        "  Built-in Retina Display frame (0, 0, 1440, 900) visible (0, 70, 1440, 805) scale 2");
    EXPECT_EQ(all[11],
              "  Studio Display frame (1440, -540, 2560, 1440) visible (1440, -470, 2560, 1345) "
              "scale 1 (main)");
}

}  // namespace
}  // namespace vistrel
