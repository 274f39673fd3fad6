#pragma once

#include "platform/report_dialog.h"

namespace vistrel {

// NSAlert with an accessory view: an NSTextView in an NSScrollView for the note over an
// NSTextField for the email.
class MacReportDialog : public ReportDialog {
  public:
    ReportDialogAnswer run(const ReportDialogContent& dialog) override;
};

}  // namespace vistrel
