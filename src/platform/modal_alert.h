#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vistrel {

// What an alert says: its bold title (NSAlert.messageText), the smaller text under it
// (informativeText, may be empty) and its buttons, the first one the default.
struct AlertContent {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;

    friend bool operator==(const AlertContent&, const AlertContent&) = default;
};

// NSAlert.runModal on the main thread, the application activated first so the alert comes
// to the front of an accessory agent.
class ModalAlert {
  public:
    virtual ~ModalAlert() = default;
    // The index of the button the user chose; nothing when the alert ended without one.
    virtual std::optional<std::size_t> run(const AlertContent& alert) = 0;

    // The button chosen and whether the check box was ticked when the alert ended.
    struct Answer {
        std::optional<std::size_t> button;
        bool ticked = false;
    };
    // The same alert with a check box under its text, unticked at first: NSAlert's
    // suppression button (showsSuppressionButton) under the title `checkbox`.
    virtual Answer runWithCheckbox(const AlertContent& alert, const std::string& checkbox) = 0;
};

namespace AlertResponse {

// NSAlertFirstButtonReturn: runModal answers it for the first button, one more for each next.
inline constexpr std::int64_t firstButton = 1000;

// The button a modal response names among `buttons`; nothing for any other response (the
// session aborted or stopped, NSModalResponseAbort and NSModalResponseStop), which must never
// be taken for a button: the first one is often the one that changes something.
inline std::optional<std::size_t> button(std::int64_t response, std::size_t buttons) {
    if (response < firstButton) return std::nullopt;
    const auto index = static_cast<std::size_t>(response - firstButton);
    if (index >= buttons) return std::nullopt;
    return index;
}

}  // namespace AlertResponse

}  // namespace vistrel
