#pragma once

#include <optional>
#include <string>

namespace vistrel {

// NSSavePanel.runModal on the main thread with nameFieldStringValue = `proposedName`: the
// place the user chose, or nothing when the panel was cancelled.
class SavePanel {
  public:
    virtual ~SavePanel() = default;
    virtual std::optional<std::string> run(const std::string& proposedName) = 0;
};

}  // namespace vistrel
