#include "views/app_look.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include "platform/platform.h"

namespace vistrel {

namespace {

// Pixels more transparent than this are the icon's surroundings, not its colour.
constexpr std::uint8_t opaqueAlpha = 200;
// A pixel whose brightest and darkest channels differ by less than this is grey or white,
// the icon's glyph or rim rather than its colour.
constexpr int saturatedSpread = 48;
constexpr double channelMax = 255;

struct Looks {
    std::uint64_t generation = 0;
    std::map<std::string, std::shared_ptr<const Image>> icons;
    std::map<std::string, Color> colors;
};

// The cache belongs to the installed platform: another desktop has other applications.
Looks& looks() {
    static Looks cache;
    if (cache.generation != platformGeneration()) cache = Looks{platformGeneration(), {}, {}};
    return cache;
}

struct Sum {
    double red = 0, green = 0, blue = 0;
    int count = 0;

    void add(const std::uint8_t* pixel) {
        red += pixel[0];
        green += pixel[1];
        blue += pixel[2];
        ++count;
    }
    Color average() const {
        return {red / count / channelMax, green / count / channelMax, blue / count / channelMax, 1};
    }
};

}  // namespace

std::shared_ptr<const Image> AppLook::icon(const std::string& bundleID) {
    auto& icons = looks().icons;
    auto found = icons.find(bundleID);
    if (found != icons.end()) return found->second;
    auto made = platform().workspace.applicationIcon(bundleID, iconPixels);
    if (made && !made->isValid()) made = nullptr;
    icons.emplace(bundleID, made);
    return made;
}

Color AppLook::color(const std::string& bundleID) {
    auto& colors = looks().colors;
    auto found = colors.find(bundleID);
    if (found != colors.end()) return found->second;
    const auto image = icon(bundleID);
    const Color made = image ? dominantColor(*image) : fallbackColor;
    colors.emplace(bundleID, made);
    return made;
}

Color AppLook::dominantColor(const Image& image) {
    if (!image.isValid()) return fallbackColor;
    Sum saturated;
    Sum opaque;
    for (std::size_t i = 0; i + 3 < image.rgba.size(); i += 4) {
        const std::uint8_t* pixel = &image.rgba[i];
        if (pixel[3] < opaqueAlpha) continue;
        opaque.add(pixel);
        const auto [low, high] = std::minmax({pixel[0], pixel[1], pixel[2]});
        if (high - low >= saturatedSpread) saturated.add(pixel);
    }
    if (saturated.count > 0) return saturated.average();
    if (opaque.count > 0) return opaque.average();
    return fallbackColor;
}

}  // namespace vistrel
