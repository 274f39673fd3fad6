#pragma once

#import <AppKit/AppKit.h>

#include <string>

namespace vistrel::SettingsWidgets {

// How wide a label's text runs before it wraps, in points.
inline constexpr CGFloat helpWidth = 360;

// A wrapping label in the font and colour given.
NSTextField* label(const std::string& text, NSFont* font, NSColor* color);
// The system font at its regular and small sizes.
NSFont* bodyFont();
NSFont* smallFont();
// A stack view for Auto Layout, laid out along `orientation` with `spacing` between views.
NSStackView* stack(NSUserInterfaceLayoutOrientation orientation, CGFloat spacing);

}  // namespace vistrel::SettingsWidgets
