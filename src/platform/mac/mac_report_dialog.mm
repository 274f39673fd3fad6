#include "platform/mac/mac_report_dialog.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_modal_alert.h"
#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {

// The accessory's size and its two fields' heights and spacing, in points.
constexpr CGFloat accessoryWidth = 320;
constexpr CGFloat noteHeight = 110;
constexpr CGFloat emailHeight = 24;
constexpr CGFloat fieldSpacing = 8;

// A text view grows with its text only up to its maxSize, which starts as its first frame:
// without an unbounded height a long note would run past the view instead of scrolling.
NSScrollView* noteField(NSTextView* __strong* textView) {
    NSScrollView* scroll = [[NSScrollView alloc]
        initWithFrame:NSMakeRect(0, emailHeight + fieldSpacing, accessoryWidth, noteHeight)];
    scroll.hasVerticalScroller = YES;
    scroll.borderType = NSBezelBorder;
    const NSSize visible = scroll.contentSize;
    NSTextView* text =
        [[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, visible.width, visible.height)];
    text.richText = NO;
    text.font = [NSFont systemFontOfSize:NSFont.systemFontSize];
    text.minSize = NSMakeSize(0, visible.height);
    text.maxSize = NSMakeSize(CGFLOAT_MAX, CGFLOAT_MAX);
    text.verticallyResizable = YES;
    text.horizontallyResizable = NO;
    text.autoresizingMask = NSViewWidthSizable;
    text.textContainer.size = NSMakeSize(visible.width, CGFLOAT_MAX);
    text.textContainer.widthTracksTextView = YES;
    text.automaticQuoteSubstitutionEnabled = NO;
    scroll.documentView = text;
    *textView = text;
    return scroll;
}

NSTextField* emailField(const std::string& placeholder) {
    NSTextField* field =
        [[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, accessoryWidth, emailHeight)];
    field.placeholderString = nsString(placeholder);
    return field;
}

}  // namespace

ReportDialogAnswer MacReportDialog::run(const ReportDialogContent& dialog) {
    NSAlert* alert = makeAlert(dialog.alert);
    NSTextView* note = nil;
    NSView* accessory = [[NSView alloc]
        initWithFrame:NSMakeRect(0, 0, accessoryWidth, noteHeight + fieldSpacing + emailHeight)];
    [accessory addSubview:noteField(&note)];
    NSTextField* email = emailField(dialog.emailPlaceholder);
    [accessory addSubview:email];
    alert.accessoryView = accessory;
    [alert layout];
    alert.window.initialFirstResponder = note;
    note.nextKeyView = email;
    ReportDialogAnswer answer;
    answer.button = runAlert(alert);
    answer.note = utf8(note.string);
    answer.email = utf8(email.stringValue);
    return answer;
}

}  // namespace vistrel
