#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/report_dialog.h"

namespace vistrel {

// The problem-report dialog on the simulated screen: recorded, shown to an observer and
// answered with the next scripted answer; with none left the user cancels (the last button).
class SimReportDialog : public ReportDialog {
  public:
    ReportDialogAnswer run(const ReportDialogContent& dialog) override {
        shown.push_back(dialog);
        ReportDialogAnswer answer;
        if (!dialog.alert.buttons.empty()) answer.button = dialog.alert.buttons.size() - 1;
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        if (observer) observer(dialog, answer);
        return answer;
    }

    std::deque<ReportDialogAnswer> answers;
    std::vector<ReportDialogContent> shown;
    std::function<void(const ReportDialogContent&, const ReportDialogAnswer&)> observer;
};

}  // namespace vistrel
