#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel {

// "Report a Problem…": the dialog where the user describes what happened, the archive
// (see ReportArchive), its upload to the report service and saving it to a file. Every
// way it ends is a visible alert; nothing is retried. Main thread only: the upload runs on
// the URL session's queue and comes back to the main thread to show its outcome.
struct ReportProblem {
    struct Text {
        static constexpr std::string_view title = "Report a Problem";
        static constexpr std::string_view message =
            "Describe what happened. The report includes Vistrel's log, your macOS version, "
            "display setup and permission state, and recent crash reports of Vistrel. It does not "
            "include window contents or your files, though the log can name apps and windows you "
            "acted on.";
        // Added to the message when a capture of Mission Control goes with the report.
        static constexpr std::string_view withCapture =
            " It also includes the capture of how this Mac shows Mission Control.";
        static constexpr std::string_view emailPlaceholder = "Your email, if you'd like a reply";
        static constexpr std::string_view send = "Send Report";
        static constexpr std::string_view saveToFile = "Save to File…";
        static constexpr std::string_view cancel = "Cancel";
        static constexpr std::string_view ok = "OK";
        static constexpr std::string_view buildFailed = "Could not put the report together.";
        static constexpr std::string_view notSent = "The report could not be sent";
        static constexpr std::string_view saveFailed = "Could not save the report: ";
    };
    // The dialog's buttons, in order.
    enum Button : std::size_t { sendButton = 0, saveButton, cancelButton };
    // How long the upload may take before it counts as failed, in seconds.
    static constexpr double uploadTimeout = 60;

    // Shows the dialog and does what the user chose; the attachments (a capture of Mission
    // Control) go into the archive.
    static void show(const std::vector<std::filesystem::path>& attachments = {});
    // The archive of a report with this note, email and attachments; nothing when it could
    // not be made.
    static std::optional<std::filesystem::path> buildZip(
        std::string_view note, std::string_view email,
        const std::vector<std::filesystem::path>& attachments = {});
    // Posts the archive to the report service and shows the outcome when it is known.
    static void upload(std::string_view note, std::string_view email,
                       const std::filesystem::path& zip);
    // Asks for a place and copies the archive there, replacing what is there.
    static void save(const std::filesystem::path& zip);
    // The crash reports a report includes.
    static std::vector<std::filesystem::path> recentCrashReports();

    // "Thank you. Your report number is …" with the reply promise when there is an email.
    static std::string thanks(std::string_view number, std::string_view email);
    // "Save it instead and email it to <support address>."
    static std::string saveInstead(std::string_view supportAddress);
};

}  // namespace vistrel
