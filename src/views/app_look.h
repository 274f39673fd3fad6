#pragma once

#include <memory>
#include <string>

#include "platform/canvas.h"
#include "platform/color.h"

namespace vistrel {

// How an application appears in the shelf's miniatures: its icon, and a colour taken from
// the icon so that its windows are told apart at a glance. Both are asked of the platform
// once per bundle identifier and kept. Main thread only.
struct AppLook {
    // The icon's side in pixels: sharp at twice the size the miniatures draw it.
    static constexpr int iconPixels = 64;
    // The colour of an application without an icon.
    static constexpr Color fallbackColor = Color::fromRGB(0x8E8E93);

    // Nothing when the application is not installed.
    static std::shared_ptr<const Image> icon(const std::string& bundleID);
    static Color color(const std::string& bundleID);

    // The icon's dominant colour: the average of its opaque, saturated pixels (all of its
    // opaque pixels when none is saturated); the fallback for an empty or clear image.
    static Color dominantColor(const Image& image);
};

}  // namespace vistrel
