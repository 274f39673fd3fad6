#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/pasteboard.h"

namespace vistrel {

// The simulated desktop's general pasteboard: keeps the text copied last and records every
// copy; while `failing` it refuses, as a pasteboard that another process holds can, and
// keeps what it had.
class SimPasteboard : public Pasteboard {
  public:
    bool copyText(const std::string& text) override {
        if (failing) return false;
        text_ = text;
        copies.push_back(text);
        return true;
    }

    // What a paste would give now; nothing until something was copied.
    const std::optional<std::string>& text() const { return text_; }

    bool failing = false;
    std::vector<std::string> copies;

  private:
    std::optional<std::string> text_;
};

}  // namespace vistrel
