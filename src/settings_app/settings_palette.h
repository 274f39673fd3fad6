#pragma once

#include "platform/color.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel {

// The colours of the Settings window as the simulator paints it, light and dark, after the
// system's own window, sidebar, grouped-box, label and control colours.
namespace SettingsPalette {
inline constexpr DFKitColor window =
    dynamicColor(Color::fromRGB(0xECECEC), Color::fromRGB(0x1E1E1E));
inline constexpr DFKitColor sidebar =
    dynamicColor(Color::fromRGB(0xE1E1E3), Color::fromRGB(0x282828));
inline constexpr DFKitColor box = dynamicColor(Color::fromRGB(0xF7F7F7), Color::fromRGB(0x282828));
inline constexpr DFKitColor boxBorder =
    dynamicColor(Color::black().withAlpha(0.09), Color::white().withAlpha(0.08));
inline constexpr DFKitColor separator =
    dynamicColor(Color::black().withAlpha(0.09), Color::white().withAlpha(0.09));
inline constexpr DFKitColor label =
    dynamicColor(Color::black().withAlpha(0.85), Color::white().withAlpha(0.86));
inline constexpr DFKitColor secondaryLabel =
    dynamicColor(Color::black().withAlpha(0.50), Color::white().withAlpha(0.55));
inline constexpr DFKitColor tertiaryLabel =
    dynamicColor(Color::black().withAlpha(0.26), Color::white().withAlpha(0.25));
inline constexpr DFKitColor accent =
    dynamicColor(Color::fromRGB(0x0A7AFF), Color::fromRGB(0x0A84FF));
inline constexpr DFKitColor onAccent = dynamicColor(Color::white(), Color::white());
inline constexpr DFKitColor table = dynamicColor(Color::white(), Color::fromRGB(0x1E1E1E));
inline constexpr DFKitColor control = dynamicColor(Color::white(), Color::fromRGB(0x5A5A5C));
inline constexpr DFKitColor controlBorder =
    dynamicColor(Color::black().withAlpha(0.16), Color::white().withAlpha(0.07));
inline constexpr DFKitColor track =
    dynamicColor(Color::black().withAlpha(0.09), Color::white().withAlpha(0.14));
inline constexpr DFKitColor knob = dynamicColor(Color::white(), Color::fromRGB(0xCFCFD1));
inline constexpr DFKitColor good = dynamicColor(Color::fromRGB(0x28A745), Color::fromRGB(0x32D74B));
inline constexpr DFKitColor attention =
    dynamicColor(Color::fromRGB(0xF0960A), Color::fromRGB(0xFF9F0A));
inline constexpr DFKitColor desktop =
    dynamicColor(Color::fromRGB(0x5C6B8A), Color::fromRGB(0x2D3548));
inline constexpr DFKitColor thumbnail =
    dynamicColor(Color::fromRGB(0xFBFBFB), Color::fromRGB(0x3A3A3C));
inline constexpr DFKitColor thumbnailBar =
    dynamicColor(Color::fromRGB(0xE6E6E8), Color::fromRGB(0x4A4A4D));
}  // namespace SettingsPalette

}  // namespace vistrel
