#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "diagnostics/report_service.h"
#include "support/sim_test.h"
#include "support/temp_dir.h"

namespace vistrel::testing {

// A problem report on the simulated desktop: HOME and the temporary folder point into a
// folder of the test's own, so the report reads a log, crash reports and user files the
// test put there and nothing of the machine's.
class ReportTest : public SimTest {
  protected:
    ReportTest() : savedHome_(std::getenv("HOME")) {
        setenv("HOME", home().c_str(), 1);
        std::filesystem::create_directories(temporary());
        desktop.files().temporaryDirectory = temporary().string();
    }
    ~ReportTest() override { setenv("HOME", savedHome_.c_str(), 1); }

    std::filesystem::path home() const { return root_.path() / "home"; }
    std::filesystem::path temporary() const { return root_.path() / "tmp"; }
    std::filesystem::path logs() const { return home() / "Library/Logs/Vistrel"; }
    std::filesystem::path crashReports() const { return home() / "Library/Logs/DiagnosticReports"; }

    // Writes a file (and its folders) modified `age` seconds before the simulated now.
    std::filesystem::path writeFile(const std::filesystem::path& path, const std::string& text,
                                    double age = 0) {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
        const auto now = std::chrono::system_clock::time_point(
            std::chrono::duration_cast<std::chrono::system_clock::duration>(
                std::chrono::duration<double>(desktop.clock().now() - age)));
        std::filesystem::last_write_time(path, std::chrono::file_clock::from_sys(now));
        return path;
    }

    // The archives made so far, in the test's temporary folder.
    std::vector<std::filesystem::path> archives() {
        std::vector<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(temporary())) {
            if (entry.path().extension() == ".zip") found.push_back(entry.path());
        }
        return found;
    }

    void pointServiceAt(const std::string& baseURL) {
        desktop.infoDictionary().values[std::string(ReportService::baseURLKey)] = baseURL;
    }

  private:
    TempDir root_;
    std::string savedHome_;
};

}  // namespace vistrel::testing
