#include "app/capture_report.h"

#include <filesystem>
#include <string>

#include "base/log.h"
#include "diagnostics/report_problem.h"
#include "platform/platform.h"
#include "tracking/health.h"
#include "tracking/mission_control_capture.h"

namespace vistrel {

namespace {

using Text = CaptureReport::Text;
using Outcome = MissionControlCapture::Outcome;

constexpr std::size_t captureButton = 0;

std::string str(std::string_view text) {
    return std::string(text);
}

void tell(std::string_view title) {
    platform().alert.run({str(title), "", {str(Text::ok)}});
}

void finished(Outcome outcome, const MissionControlCapture::Request& request) {
    Health::shared().setCaptureWaiting(false);
    Log::info(MissionControlCapture::message(outcome, request));
    if (outcome == Outcome::written) return ReportProblem::show({request.path});
    tell(outcome == Outcome::neverOpened ? Text::neverOpened : Text::failed);
}

}  // namespace

void CaptureReport::start() {
    if (Health::shared().captureWaiting()) return;
    Platform& p = platform();
    const AlertContent alert{
        str(Text::title), str(Text::message), {str(Text::capture), str(Text::cancel)}};
    const ModalAlert::Answer answer = p.alert.runWithCheckbox(alert, str(Text::checkbox));
    if (answer.button != captureButton) return;
    const auto folder = p.files.makeTemporaryFolder(folderPrefix);
    if (!folder) {
        Log::error("capture: could not make a temporary folder");
        return tell(Text::failed);
    }
    const MissionControlCapture::Request request{
        (std::filesystem::path(*folder) / fileName).string(), answer.ticked};
    Health::shared().setCaptureWaiting(true);
    Log::info(answer.ticked ? "capture: waiting for Mission Control, with window titles"
                            : "capture: waiting for Mission Control, without window titles");
    MissionControlCapture::start(request,
                                 [request](Outcome outcome) { finished(outcome, request); });
}

}  // namespace vistrel
