#include "platform/mac/settings_app/settings_widgets.h"

#include "platform/mac/mac_strings.h"

namespace vistrel::SettingsWidgets {

NSTextField* label(const std::string& text, NSFont* font, NSColor* color) {
    NSTextField* field = [NSTextField wrappingLabelWithString:nsString(text)];
    field.font = font;
    field.textColor = color;
    field.preferredMaxLayoutWidth = helpWidth;
    return field;
}

NSFont* bodyFont() {
    return [NSFont systemFontOfSize:NSFont.systemFontSize];
}

NSFont* smallFont() {
    return [NSFont systemFontOfSize:NSFont.smallSystemFontSize];
}

NSStackView* stack(NSUserInterfaceLayoutOrientation orientation, CGFloat spacing) {
    NSStackView* view = [[NSStackView alloc] initWithFrame:NSZeroRect];
    view.orientation = orientation;
    view.spacing = spacing;
    view.translatesAutoresizingMaskIntoConstraints = NO;
    return view;
}

}  // namespace vistrel::SettingsWidgets
