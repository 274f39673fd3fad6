#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/modal_alert.h"

namespace vistrel {

// The problem-report dialog: an alert whose accessory view holds a scrolling multi-line
// note field over a one-line email field.
struct ReportDialogContent {
    AlertContent alert;
    std::string emailPlaceholder;  // NSTextField.placeholderString
};

// What the user typed and the button that closed the dialog.
struct ReportDialogAnswer {
    std::optional<std::size_t> button;
    std::string note;
    std::string email;
};

// NSAlert with an accessoryView (an NSScrollView holding an NSTextView, and an NSTextField),
// run modally on the main thread; the note field has the keyboard focus first.
class ReportDialog {
  public:
    virtual ~ReportDialog() = default;
    virtual ReportDialogAnswer run(const ReportDialogContent& dialog) = 0;
};

}  // namespace vistrel
