#include "diagnostics/report_problem.h"

#include <string>

#include "base/file_log.h"
#include "base/log.h"
#include "diagnostics/report_archive.h"
#include "diagnostics/report_endpoint.h"
#include "diagnostics/report_service.h"
#include "platform/platform.h"

namespace vistrel {

namespace fs = std::filesystem;

namespace {

using Text = ReportProblem::Text;

constexpr std::string_view whitespace = " \t\r\n";
constexpr int firstSuccessStatus = 200;
constexpr int lastSuccessStatus = 299;
constexpr std::string_view contentType = "application/zip";
// The "could not be sent" alert's first button saves the report.
constexpr std::size_t saveInsteadButton = 0;

std::string str(std::string_view text) {
    return std::string(text);
}

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(whitespace);
    if (first == std::string_view::npos) return {};
    return str(text.substr(first, text.find_last_not_of(whitespace) - first + 1));
}

void tell(std::string_view title) {
    platform().alert.run({str(title), "", {str(Text::ok)}});
}

// The upload failed: the user is offered to save the archive and mail it by hand.
void offerToSave(const fs::path& zip) {
    const AlertContent alert{str(Text::notSent),
                             ReportProblem::saveInstead(ReportService::supportAddress()),
                             {str(Text::saveToFile), str(Text::cancel)}};
    if (platform().alert.run(alert) == saveInsteadButton) ReportProblem::save(zip);
}

void uploadFailed(std::string_view reason, const fs::path& zip) {
    Log::error("report upload failed: " + str(reason));
    platform().executor.main().async([zip] { offerToSave(zip); });
}

// Runs on the session's queue.
void finishUpload(const UploadResponse& response, const std::string& email, const fs::path& zip) {
    if (response.error) return uploadFailed(*response.error, zip);
    if (response.status < firstSuccessStatus || response.status > lastSuccessStatus)
        return uploadFailed("status " + std::to_string(response.status), zip);
    const std::optional<std::string> number = reportNumber(response.body);
    if (!number) return uploadFailed("no report number in the answer", zip);
    Log::info("Report sent as " + *number);
    platform().executor.main().async(
        [text = ReportProblem::thanks(*number, email)] { tell(text); });
}

}  // namespace

void ReportProblem::show(const std::vector<fs::path>& attachments) {
    const std::string message =
        str(Text::message) + (attachments.empty() ? "" : str(Text::withCapture));
    const ReportDialogContent dialog{
        {str(Text::title), message, {str(Text::send), str(Text::saveToFile), str(Text::cancel)}},
        str(Text::emailPlaceholder)};
    const ReportDialogAnswer answer = platform().reportDialog.run(dialog);
    if (answer.button != sendButton && answer.button != saveButton) return;
    const bool sending = answer.button == sendButton;
    Log::info(sending ? "report a problem: sending" : "report a problem: saving");
    Log::file().flush();
    const std::string email = trimmed(answer.email);
    const std::optional<fs::path> zip = buildZip(answer.note, email, attachments);
    if (!zip) return tell(Text::buildFailed);
    if (sending) {
        upload(answer.note, email, *zip);
    } else {
        save(*zip);
    }
}

std::optional<fs::path> ReportProblem::buildZip(std::string_view note, std::string_view email,
                                                const std::vector<fs::path>& attachments) {
    return ReportArchive::build(note, email, attachments);
}

std::vector<fs::path> ReportProblem::recentCrashReports() {
    return ReportArchive::recentCrashReports();
}

void ReportProblem::upload(std::string_view note, std::string_view email, const fs::path& zip) {
    Platform& p = platform();
    const std::string base = ReportService::baseURL();
    const ReportQuery query{p.workspace.mainBundle().version, p.systemInfo.operatingSystemVersion(),
                            str(email), str(note)};
    const std::optional<std::string> url = ReportEndpoint::url(base, query);
    if (!url) return uploadFailed("the report service address is not https: " + base, zip);
    const UploadRequest request{
        *url, "POST", {{"Content-Type", str(contentType)}}, zip.string(), uploadTimeout};
    p.uploader.upload(request, [email = str(email), zip](UploadResponse response) {
        finishUpload(response, email, zip);
    });
}

void ReportProblem::save(const fs::path& zip) {
    Platform& p = platform();
    const std::optional<std::string> chosen = p.savePanel.run(zip.filename().string());
    if (!chosen) return;
    const fs::path place = *chosen;
    if (place == zip) return;
    FileError error;
    if (p.files.exists(place.string())) error = p.files.remove(place.string());
    if (!error) error = p.files.copy(zip.string(), place.string());
    if (error) tell(str(Text::saveFailed) + *error);
}

std::string ReportProblem::thanks(std::string_view number, std::string_view email) {
    std::string text = "Thank you. Your report number is " + str(number) + ".";
    if (!email.empty()) text += " We'll reply to " + str(email) + ".";
    return text + " If you write to support, mention it.";
}

std::string ReportProblem::saveInstead(std::string_view supportAddress) {
    return "Save it instead and email it to " + str(supportAddress) + ".";
}

}  // namespace vistrel
