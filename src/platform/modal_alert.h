#pragma once

#include <cstddef>
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
    // The index of the button the user chose (NSAlertFirstButtonReturn + index).
    virtual std::size_t run(const AlertContent& alert) = 0;
};

}  // namespace vistrel
