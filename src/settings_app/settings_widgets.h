#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "settings_app/settings_ink.h"

namespace vistrel {

// The standard controls of a macOS settings window, painted in the simulator: what AppKit
// draws for NSSwitch, NSPopUpButton, NSSegmentedControl, NSSlider and NSButton.
namespace SettingsWidgets {
inline constexpr Size switchSize{38, 22};
inline constexpr double controlHeight = 22;
inline constexpr double controlFontSize = 13;
inline constexpr double sliderWidth = 200;

Font controlFont();
// A capsule switch, the accent colour when on, the knob at the right when on.
void drawSwitch(Canvas& canvas, Point origin, bool on, const SettingsInk& ink);
// How wide a pop-up button with this title is.
double popUpWidth(const std::string& title);
void drawPopUp(Canvas& canvas, Rect rect, const std::string& title, const SettingsInk& ink);
double segmentedWidth(const std::vector<std::string>& titles);
void drawSegmented(Canvas& canvas, Rect rect, const std::vector<std::string>& titles,
                   std::size_t selected, const SettingsInk& ink);
// A horizontal slider with its knob at `fraction` (0 to 1) of the track.
void drawSlider(Canvas& canvas, Rect rect, double fraction, const SettingsInk& ink);
double pushButtonWidth(const std::string& title);
// `isDefault`: the button Return presses, filled with the accent colour.
void drawPushButton(Canvas& canvas, Rect rect, const std::string& title, bool isDefault,
                    const SettingsInk& ink);
// A small round status light.
void drawStatusLight(Canvas& canvas, Point centre, bool good, const SettingsInk& ink);
}  // namespace SettingsWidgets

}  // namespace vistrel
