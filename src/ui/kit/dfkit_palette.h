#pragma once

#include "platform/appearance.h"
#include "platform/color.h"

namespace vistrel {

// A colour with one value for the light appearance and one for the dark: what an NSColor
// with a dynamic provider is, resolved here when a view draws.
struct DFKitColor {
    Color light;
    Color dark;

    constexpr Color resolved(Appearance appearance) const {
        return appearance == Appearance::dark ? dark : light;
    }
};

constexpr DFKitColor dynamicColor(Color light, Color dark) {
    return {light, dark};
}

// The kit's ten colours. Every view draws in these and nothing else.
namespace DFKit {
inline constexpr Color inkBlack = Color::fromRGB(0x111214);
inline constexpr DFKitColor surface = dynamicColor(Color::white(), Color::fromRGB(0x1B1B1D));
inline constexpr DFKitColor ink = dynamicColor(inkBlack, Color::fromRGB(0xF4F4F2));
inline constexpr DFKitColor inkMuted =
    dynamicColor(Color::fromRGB(0x67686E), Color::fromRGB(0xA3A3A8));
inline constexpr DFKitColor line =
    dynamicColor(inkBlack.withAlpha(0.08), Color::white().withAlpha(0.09));
inline constexpr DFKitColor lineStrong =
    dynamicColor(inkBlack.withAlpha(0.22), Color::white().withAlpha(0.24));
inline constexpr DFKitColor chip =
    dynamicColor(inkBlack.withAlpha(0.06), Color::white().withAlpha(0.08));
inline constexpr DFKitColor track = dynamicColor(Color::fromRGB(0x787880).withAlpha(0.20),
                                                 Color::fromRGB(0x787880).withAlpha(0.32));
// A light neutral that reads on the accent and on both tracks; a shade darker in the dark
// appearance so it does not glare.
inline constexpr DFKitColor knob = dynamicColor(Color::white(), Color::fromRGB(0xE9E9EC));
inline constexpr DFKitColor indigo =
    dynamicColor(Color::fromRGB(0x5A5CF2), Color::fromRGB(0x7B7DFF));
inline constexpr DFKitColor onIndigo = dynamicColor(Color::white(), inkBlack);
}  // namespace DFKit

}  // namespace vistrel
