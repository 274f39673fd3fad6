#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "platform/sim/sim_file_system.h"
#include "support/temp_dir.h"

namespace vistrel {
namespace {

TEST(FileSystemReadTest, ReadsEveryByteOfARealFile) {
    testing::TempDir folder;
    const std::string bytes("[{\"name\":\"Café\"}]\n\0tail", 24);
    std::ofstream(folder.path() / "layouts.json", std::ios::binary) << bytes;
    SimFileSystem files;
    EXPECT_EQ(files.read((folder.path() / "layouts.json").string()), bytes);
}

TEST(FileSystemReadTest, AMissingFileOrAFolderReadsAsNothing) {
    testing::TempDir folder;
    SimFileSystem files;
    EXPECT_EQ(files.read((folder.path() / "gone.json").string()), std::nullopt);
    EXPECT_EQ(files.read(folder.path().string()), std::nullopt);
}

}  // namespace
}  // namespace vistrel
