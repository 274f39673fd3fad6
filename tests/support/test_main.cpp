#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

// Every test process gets a home folder of its own, so nothing a test logs or stores
// reaches the real user's Library.
int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    std::string pattern = (fs::temp_directory_path() / "vistrel-test-home-XXXXXX").string();
    if (char* home = mkdtemp(pattern.data())) setenv("HOME", home, 1);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
