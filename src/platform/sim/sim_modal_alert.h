#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <vector>

#include "platform/modal_alert.h"

namespace vistrel {

// Alerts on the simulated screen: each one is recorded, shown to an observer (a session
// takes its picture) and answered with the next scripted button, or the default button
// when the script has run out.
class SimModalAlert : public ModalAlert {
  public:
    std::optional<std::size_t> run(const AlertContent& alert) override {
        shown.push_back(alert);
        std::optional<std::size_t> button = 0;
        if (!answers.empty()) {
            button = answers.front();
            answers.pop_front();
        }
        if (observer) observer(alert, button);
        return button;
    }

    Answer runWithCheckbox(const AlertContent& alert, const std::string& checkbox) override {
        checkboxes.push_back(checkbox);
        Answer answer;
        answer.button = run(alert);
        if (!ticks.empty()) {
            answer.ticked = ticks.front();
            ticks.pop_front();
        }
        return answer;
    }

    // A scripted answer of nothing ends the alert without a button, as an aborted one does.
    std::deque<std::optional<std::size_t>> answers;
    std::vector<AlertContent> shown;
    // The check boxes' titles of the alerts that had one, and whether each is ticked when
    // it ends (unticked once the script has run out).
    std::vector<std::string> checkboxes;
    std::deque<bool> ticks;
    std::function<void(const AlertContent&, std::optional<std::size_t> button)> observer;
};

}  // namespace vistrel
