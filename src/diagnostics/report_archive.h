#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel {

// The zip archive of a problem report: one folder "Vistrel report <timestamp>" holding
// "diagnostics.txt", "note.txt", the file log's files and the agent's recent crash
// reports. Nothing else goes in: no window contents, no screenshots, no user files.
struct ReportArchive {
    static constexpr std::string_view diagnosticsName = "diagnostics.txt";
    static constexpr std::string_view noteName = "note.txt";
    static constexpr std::string_view temporaryPrefix = "report-";
    static constexpr std::string_view crashReportsFolder = "Library/Logs/DiagnosticReports";
    static constexpr std::string_view crashReportPrefix = "Vistrel";
    // Crash reports older than this (30 days) are left out, and at most this many are kept.
    static constexpr double crashReportMaxAge = 2'592'000;
    static constexpr std::size_t maxCrashReports = 5;

    // "Email: " + the email or "(none)", a blank line, the note and a line feed.
    static std::string noteText(std::string_view note, std::string_view email);
    // "Vistrel report 2026-11-15 at 04.19.02": local time, in the form macOS names
    // screenshots, with no colons (Finder shows them as slashes).
    static std::string folderName(double secondsSince1970);
    // The agent's crash reports of the last 30 days in "~/Library/Logs/DiagnosticReports",
    // newest first, at most five.
    static std::vector<std::filesystem::path> recentCrashReports();
    // Writes the folder in a fresh temporary folder, with the files the user chose to add
    // (a capture of Mission Control), and zips it next to itself; the archive's path, or
    // nothing (with an error line in the log) when a step failed.
    static std::optional<std::filesystem::path> build(
        std::string_view note, std::string_view email,
        const std::vector<std::filesystem::path>& attachments = {});
};

}  // namespace vistrel
