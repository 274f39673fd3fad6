#pragma once

#include <array>
#include <string>
#include <string_view>

#include "raster.h"

namespace vistrel {

// Vistrel's application icon: the mark in white on an indigo plate laid on the macOS icon
// grid (a rounded square of 824 of the canvas's 1024 units, 100 in from each side, its
// corners 185 units round, a soft shadow falling a little below it), drawn at every size an
// app icon is asked for and written as one .icns file for the agent and for the Settings app.
struct AppIcon {
    struct Size {
        std::string_view type;  // the .icns entry's type
        int pixels;
    };
    // 16, 32, 128, 256 and 512 points, each at 1x and at 2x.
    static constexpr std::array<Size, 10> sizes = {{{"icp4", 16},
                                                    {"ic11", 32},
                                                    {"icp5", 32},
                                                    {"ic12", 64},
                                                    {"ic07", 128},
                                                    {"ic13", 256},
                                                    {"ic08", 256},
                                                    {"ic14", 512},
                                                    {"ic09", 512},
                                                    {"ic10", 1024}}};
    static constexpr double grid = 1024;
    static constexpr double plateInset = 100;
    static constexpr double plateRadius = 185;
    // The mark's larger side, in grid units.
    static constexpr double markSize = 460;
    // The plate's shadow, in grid units: how far below the plate it falls, how far it spreads
    // past the plate's edge, in how many rings of faint black, and the pictures too small
    // for it (it would only blur the plate's edge there).
    static constexpr double shadowDrop = 10;
    static constexpr double shadowSpread = 28;
    static constexpr int shadowRings = 14;
    static constexpr double shadowRingAlpha = 0.018;
    static constexpr int largestUnshadowed = 32;

    static Raster render(int pixels);
    // The .icns file's bytes; nothing when a picture could not be compressed.
    static std::string icns();
};

}  // namespace vistrel
