#include <cctype>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "diagnostics/report_problem.h"
#include "diagnostics/report_service.h"
#include "platform/sim/sim_report_service.h"
#include "platform/sim/sim_zip_reader.h"
#include "session_rig.h"
#include "sim_command.h"
#include "sim_pictures.h"

namespace vistrel {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view sessionName = "report";
constexpr std::string_view pictureExtension = ".png";
constexpr std::string_view firstNote =
    "The close button didn't appear over Safari's window in Mission Control after I "
    "connected the external display.\nIt came back after I quit and reopened Vistrel.";
constexpr std::string_view firstEmail = "ada@example.com";
constexpr std::string_view secondNote = "Command-W closed the wrong window.";
constexpr std::string_view savedName = "Vistrel report.zip";
constexpr int hexBase = 16;

// A query item's value as the service reads it.
std::string percentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && std::isxdigit(text[i + 1]) &&
            std::isxdigit(text[i + 2])) {
            decoded +=
                static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, hexBase));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

// Sends a report that arrives, then one the service refuses and the user saves instead,
// taking a picture of the dialog and of every alert as the user sees them.
class ReportSession {
  public:
    explicit ReportSession(SimCommandContext& context)
        : context_(context), rig_(context, sessionName) {
        SimDesktop& desktop = rig_.desktop();
        desktop.files().temporaryDirectory = rig_.home().string();
        desktop.reportDialog().observer = [this](const ReportDialogContent& dialog,
                                                 const ReportDialogAnswer& answer) {
            picture("dialog", dialog.alert,
                    SimReportFields{answer.note, answer.email, dialog.emailPlaceholder});
        };
        desktop.alert().observer = [this](const AlertContent& alert, std::optional<std::size_t>) {
            picture(nextAlertPicture(), alert, std::nullopt);
        };
    }

    int play();

  private:
    bool sendThatArrives();
    bool sendThatFailsAndSave();
    void reportThrough(SimReportService& service, std::string_view note, std::string_view email);
    void printServerView(const SimReportService& service);
    std::string nextAlertPicture();
    void picture(std::string_view name, const AlertContent& alert,
                 const std::optional<SimReportFields>& fields);
    bool fail(std::string_view why) { return rig_.fail(why); }

    SimCommandContext& context_;
    SessionRig rig_;
    int pictures_ = 0;
    std::deque<std::string> alertPictures_;
};

int ReportSession::play() {
    context_.out << "== Report a Problem: one report sent, one saved after the service failed ==\n";
    const bool played = sendThatArrives() && sendThatFailsAndSave();
    context_.out << "  the agent's file log is under " << rig_.home().string() << "\n\n";
    return played ? 0 : 1;
}

bool ReportSession::sendThatArrives() {
    SimReportService service(SimReportService::Answer::number, R"({"number": 4711})");
    if (service.baseURL().empty()) return fail("no local port for the report service");
    context_.out << "1. Report a Problem…, type a note and an email, Send Report\n";
    alertPictures_ = {"thanks"};
    reportThrough(service, firstNote, firstEmail);
    printServerView(service);
    if (service.received().size() != 1) return fail("the service did not receive one report");
    return true;
}

bool ReportSession::sendThatFailsAndSave() {
    SimReportService service(SimReportService::Answer::serverError);
    SimDesktop& desktop = rig_.desktop();
    const fs::path place = rig_.home() / "Desktop" / savedName;
    fs::create_directories(place.parent_path());
    desktop.alert().answers.push_back(0);  // "Save to File…"
    desktop.savePanel().answers.push_back(place.string());
    context_.out << "2. Report a Problem… again, Send Report; the service answers 500\n";
    alertPictures_ = {"not-sent"};
    reportThrough(service, secondNote, "");
    printServerView(service);
    if (!fs::exists(place)) return fail("the report was not saved");
    context_.out << "  Save to File… → " << place.string() << " (" << fs::file_size(place)
                 << " bytes)\n";
    return true;
}

void ReportSession::reportThrough(SimReportService& service, std::string_view note,
                                  std::string_view email) {
    SimDesktop& desktop = rig_.desktop();
    desktop.infoDictionary().values[std::string(ReportService::baseURLKey)] = service.baseURL();
    desktop.reportDialog().answers.push_back(
        {ReportProblem::sendButton, std::string(note), std::string(email)});
    ReportProblem::show();
    desktop.executor().runUntilIdle();
}

void ReportSession::printServerView(const SimReportService& service) {
    for (const ReceivedReport& report : service.received()) {
        context_.out << "  the service received: " << report.method << " " << report.path << "\n";
        std::string_view query = report.query;
        while (!query.empty()) {
            const std::string_view item = query.substr(0, query.find('&'));
            const std::size_t equals = item.find('=');
            context_.out << "    " << item.substr(0, equals) << " = ";
            if (equals == std::string_view::npos) {
                context_.out << "(no value)\n";
            } else {
                context_.out << '"' << percentDecoded(item.substr(equals + 1)) << "\"\n";
            }
            query.remove_prefix(std::min(query.size(), item.size() + 1));
        }
        context_.out << "    Content-Type: " << report.contentType << ", " << report.body.size()
                     << " bytes of zip:\n";
        const fs::path received = rig_.home() / "received.zip";
        std::ofstream(received, std::ios::binary) << report.body;
        for (const auto& [name, bytes] : readZipEntries(received.string()))
            context_.out << "      " << name << " (" << bytes.size() << " bytes)\n";
    }
}

std::string ReportSession::nextAlertPicture() {
    if (alertPictures_.empty()) return "alert";
    std::string name = alertPictures_.front();
    alertPictures_.pop_front();
    return name;
}

void ReportSession::picture(std::string_view name, const AlertContent& alert,
                            const std::optional<SimReportFields>& fields) {
    const fs::path path =
        context_.outputDirectory / (std::string(sessionName) + "-" + std::to_string(++pictures_) +
                                    "-" + std::string(name) + std::string(pictureExtension));
    if (writeAlertPicture(rig_.desktop(), alert, fields, path)) {
        context_.out << "  wrote " << path.string() << "\n";
    } else {
        context_.out << "  could not write " << path.string() << "\n";
    }
}

int playReportSession(SimCommandContext& context) {
    return ReportSession(context).play();
}

}  // namespace

VISTREL_SIM_COMMAND("report", "plays Report a Problem: a report sent, then one saved", 60,
                    playReportSession);

}  // namespace vistrel
