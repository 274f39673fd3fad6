#include <gtest/gtest.h>

#include "base/file_log.h"
#include "base/log.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "settings/shared.h"
#include "support/temp_dir.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::string_view layoutsNotWritten =
    "layouts: the saved layouts could not be written, the ones saved before are kept";
constexpr std::string_view logNotWritten =
    "file log: cannot write Vistrel.log (No space left on device)";

// The disk fills up while the agent logs and saves layouts: what was saved before stays,
// each writer says so once, and the agent carries on.
class DiskFullTest : public LayoutsScenario {
  protected:
    void saveCurrentWindows() {
        clickCell(Item::save());
        desktop.executor().advance(1);
    }
    std::string logFile() { return readFile(Log::file().current()); }
};

TEST_F(DiskFullTest, SavingOnAFullDiskKeepsTheLayoutsSavedBeforeAndSaysSoOnce) {
    openMissionControl();
    unfoldShelf();
    saveCurrentWindows();
    const auto before = LayoutStore::load(*Shared::store());
    ASSERT_EQ(before.size(), 1u);

    desktop.setDiskFull(true);
    saveCurrentWindows();
    saveCurrentWindows();

    const auto after = LayoutStore::load(*Shared::store());
    ASSERT_EQ(after.size(), 1u);
    EXPECT_EQ(after.front().id, before.front().id);
    EXPECT_EQ(after.front().windows, before.front().windows);
    EXPECT_EQ(logged(layoutsNotWritten), 2u) << "one line for each save that failed";
}

TEST_F(DiskFullTest, AFailedSaveSaysSoToTheUserAndLogsNoSave) {
    openMissionControl();
    unfoldShelf();
    desktop.setDiskFull(true);
    saveCurrentWindows();
    EXPECT_EQ(layouts().toast().view().message(), "Could not save the layout");
    for (const SimLogLine& line : desktop.systemLog().lines())
        EXPECT_FALSE(line.message.starts_with("layouts: saved ")) << line.message;
    EXPECT_TRUE(layouts().saved().empty()) << "the shelf shows no layout that was not kept";
}

TEST_F(DiskFullTest, TheLogFileKeepsItsLinesAndTheSystemLogHearsOfTheFullDiskOnce) {
    openMissionControl();
    unfoldShelf();
    saveCurrentWindows();
    const std::string before = logFile();
    ASSERT_NE(before.find("layouts: saved the current windows as"), std::string::npos);

    desktop.setDiskFull(true);
    saveCurrentWindows();
    closeMissionControl();

    EXPECT_EQ(logFile(), before) << "nothing written before is lost, nothing half-written";
    EXPECT_EQ(logged(logNotWritten), 1u);
    EXPECT_EQ(logged("mission control went away"), 1u) << "the unified log still has it";
}

TEST_F(DiskFullTest, OnceTheDiskHasRoomAgainSavingAndLoggingCarryOn) {
    openMissionControl();
    unfoldShelf();
    saveCurrentWindows();
    desktop.setDiskFull(true);
    saveCurrentWindows();
    desktop.setDiskFull(false);
    saveCurrentWindows();

    EXPECT_EQ(LayoutStore::load(*Shared::store()).size(), 2u);
    closeMissionControl();
    const std::string text = logFile();
    EXPECT_NE(text.find("INFO mission control went away\n"), std::string::npos);
}

}  // namespace
}  // namespace vistrel::testing
