#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/save_panel.h"

namespace vistrel {

// The save panel on the simulated screen: records the proposed names and answers with the
// next scripted place; with none left the user cancels.
class SimSavePanel : public SavePanel {
  public:
    std::optional<std::string> run(const std::string& proposedName) override {
        proposedNames.push_back(proposedName);
        if (answers.empty()) return std::nullopt;
        std::optional<std::string> place = answers.front();
        answers.pop_front();
        return place;
    }

    std::deque<std::optional<std::string>> answers;
    std::vector<std::string> proposedNames;
};

}  // namespace vistrel
