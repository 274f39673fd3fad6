#include "diagnostics/report_archive.h"

#include <algorithm>
#include <ctime>

#include "base/file_log.h"
#include "base/log.h"
#include "diagnostics/diagnostics.h"
#include "platform/platform.h"

namespace vistrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view noEmail = "(none)";
constexpr std::string_view folderPrefix = "Vistrel report ";
constexpr char folderStampFormat[] = "%Y-%m-%d at %H.%M.%S";
constexpr std::size_t stampCapacity = 64;
constexpr std::string_view archiveExtension = ".zip";
constexpr std::string_view failurePrefix = "report archive failed: ";

bool failed(std::string_view reason) {
    Log::error(std::string(failurePrefix) + std::string(reason));
    return false;
}

// A log or crash report that cannot be copied (the system may clean one away between the
// listing and the copy) is left out with a log line: the rest of the report still goes.
void copyInto(FileSystem& files, const std::vector<fs::path>& items, const fs::path& folder) {
    for (const fs::path& item : items) {
        if (const FileError error = files.copy(item.string(), (folder / item.filename()).string()))
            Log::error("report archive: left out " + item.filename().string() + ": " + *error);
    }
}

bool fillFolder(const fs::path& folder, std::string_view note, std::string_view email,
                const std::vector<fs::path>& attachments) {
    FileSystem& files = platform().files;
    if (const FileError error = files.createFolder(folder.string()))
        return failed("could not make the report folder: " + *error);
    if (const FileError error = files.writeAtomically(
            (folder / ReportArchive::diagnosticsName).string(), Diagnostics::text()))
        return failed("could not write diagnostics.txt: " + *error);
    if (const FileError error = files.writeAtomically((folder / ReportArchive::noteName).string(),
                                                      ReportArchive::noteText(note, email)))
        return failed("could not write note.txt: " + *error);
    copyInto(files, Log::file().files(), folder);
    copyInto(files, ReportArchive::recentCrashReports(), folder);
    copyInto(files, attachments, folder);
    return true;
}

}  // namespace

std::string ReportArchive::noteText(std::string_view note, std::string_view email) {
    return "Email: " + std::string(email.empty() ? noEmail : email) + "\n\n" + std::string(note) +
           "\n";
}

std::string ReportArchive::folderName(double secondsSince1970) {
    const std::time_t time = static_cast<std::time_t>(secondsSince1970);
    std::tm local{};
    localtime_r(&time, &local);
    char stamp[stampCapacity] = {};
    std::strftime(stamp, sizeof stamp, folderStampFormat, &local);
    return std::string(folderPrefix) + stamp;
}

std::vector<fs::path> ReportArchive::recentCrashReports() {
    Platform& p = platform();
    const double oldest = p.clock.now() - crashReportMaxAge;
    std::vector<FileEntry> entries = p.files.contentsWithModificationDates(
        (fs::path(p.files.homeDirectory()) / crashReportsFolder).string());
    std::erase_if(entries, [oldest](const FileEntry& entry) {
        return !fs::path(entry.path).filename().string().starts_with(crashReportPrefix) ||
               entry.modified <= oldest;
    });
    std::sort(entries.begin(), entries.end(),
              [](const FileEntry& a, const FileEntry& b) { return a.modified > b.modified; });
    std::vector<fs::path> newest;
    for (const FileEntry& entry : entries) {
        if (newest.size() == maxCrashReports) break;
        newest.push_back(entry.path);
    }
    return newest;
}

std::optional<fs::path> ReportArchive::build(std::string_view note, std::string_view email,
                                             const std::vector<fs::path>& attachments) {
    Platform& p = platform();
    const std::optional<fs::path> temporary = p.files.makeTemporaryFolder(temporaryPrefix);
    if (!temporary) {
        failed("could not make a temporary folder");
        return std::nullopt;
    }
    const fs::path folder = *temporary / folderName(p.clock.now());
    if (!fillFolder(folder, note, email, attachments)) return std::nullopt;
    const fs::path archive = folder.string() + std::string(archiveExtension);
    if (const std::optional<std::string> error =
            p.archiver.zip(folder.string(), archive.string())) {
        failed("could not zip the report: " + *error);
        return std::nullopt;
    }
    return archive;
}

}  // namespace vistrel
