#include "platform/sim/cairo_desktop_painter.h"

#include <array>
#include <cstdint>

#include "platform/display_list.h"
#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

// Window chrome, in points, after macOS's standard document window.
constexpr double windowCornerRadius = 10;
constexpr double titleBarHeight = 28;
constexpr double trafficLightDiameter = 12;
constexpr double trafficLightInset = 9;
constexpr double trafficLightSpacing = 20;
constexpr double titleFontSize = 13;
constexpr double shadowLayers = 8;
constexpr double shadowSpread = 1.6;
constexpr double shadowLayerAlpha = 0.035;
constexpr double shadowDrop = 6;

constexpr double menuBarFontSize = 13;
constexpr double menuBarTextInset = 36;
constexpr double dockTile = 48;
constexpr double dockGap = 10;
constexpr double dockPadding = 8;
constexpr double dockBottomGap = 6;
constexpr double dockTileRadius = 11;

constexpr double spacesBarHeight = 34;
constexpr double spacesFontSize = 12;
constexpr double spacesLabelSpacing = 120;
constexpr double missionControlDim = 0.38;
constexpr double labelFontSize = 12;
constexpr double labelGap = 8;
constexpr double labelPaddingX = 8;
constexpr double labelHeight = 20;
// Mission Control rings the thumbnail under the pointer in the system's blue.
constexpr double highlightOffset = 1.5;
constexpr double highlightWidth = 3;
constexpr double highlightRadius = 8;

constexpr std::array<double, 3> wallpaperTop = {0.16, 0.23, 0.45};
constexpr std::array<double, 3> wallpaperBottom = {0.47, 0.30, 0.55};

Color rgb(int hex) {
    constexpr double max = 255;
    return {((hex >> 16) & 0xFF) / max, ((hex >> 8) & 0xFF) / max, (hex & 0xFF) / max, 1};
}

const Color windowBody = rgb(0xFBFBFB);
const Color highlightColor = rgb(0x0A84FF);
const Color titleBarColor = rgb(0xECECEC);
const Color chromeLine = Color::black().withAlpha(0.12);
const Color inactiveSpaceLabel = Color::white().withAlpha(0.6);
const Color menuBarColor = Color::white().withAlpha(0.55);
const Color menuBarText = Color::black().withAlpha(0.85);
const Color darkMenuBarColor = Color::fromRGB(0x1E1E22).withAlpha(0.7);
const Color darkMenuBarText = Color::white().withAlpha(0.9);
const Color dockColor = Color::white().withAlpha(0.28);
const Color dockRim = Color::white().withAlpha(0.35);
const Color labelCapsule = Color::black().withAlpha(0.45);
constexpr double sidebarAlpha = 0.14;

// A window's made-up content: a sidebar tinted with the application's colour and lines of
// text whose lengths cycle through these fractions of the free width.
constexpr double sidebarFraction = 0.28;
constexpr double sidebarMaximum = 200;
constexpr double contentLineHeight = 10;
constexpr double contentLineStep = 24;
constexpr double contentInset = 20;
constexpr double contentLineRadius = 3;
constexpr std::array<double, 4> contentLineLengths = {0.92, 0.74, 0.86, 0.58};

// A line of text sits with its baseline this share of the font size below its middle.
constexpr double baselineBelowMiddle = 1.0 / 3;

// The arrow pointer's outline after its tip, in points from the tip, and the rim around it.
constexpr std::array<Point, 6> arrowOutline = {Point{0, 16.5}, {3.9, 12.8}, {6.6, 18.6},
                                               {9.2, 17.4},    {6.6, 11.8}, {11.8, 11.8}};
constexpr double arrowRimWidth = 2.4;
const Color titleColor = rgb(0x4A4A4C);
const Color contentLine = rgb(0xE3E3E6);
const std::array<Color, 3> trafficLights = {rgb(0xFF5F57), rgb(0xFEBC2E), rgb(0x28C840)};

constexpr std::array<int, 8> accentPalette = {0x4F8EF7, 0xF2994A, 0x27AE60, 0x9B51E0,
                                              0xEB5757, 0x2D9CDB, 0xF2C94C, 0x6FCF97};

}  // namespace

CairoDesktopPainter::CairoDesktopPainter(cairo_t* cr, CairoFonts& fonts, Rect screen)
    : cr_(cr), canvas_(cr, fonts, false), screen_(screen) {}

// FNV-1a: unlike std::hash, the same on every standard library, so pictures do not change
// from one machine to the next.
Color CairoDesktopPainter::accentFor(const std::string& bundleIdentifier) {
    constexpr std::uint32_t offsetBasis = 2166136261u;
    constexpr std::uint32_t prime = 16777619u;
    std::uint32_t hash = offsetBasis;
    for (unsigned char c : bundleIdentifier)
        hash = (hash ^ c) * prime;
    return rgb(accentPalette[hash % accentPalette.size()]);
}

void CairoDesktopPainter::wallpaper(bool missionControl) {
    cairo_pattern_t* gradient =
        cairo_pattern_create_linear(screen_.minX(), screen_.minY(), screen_.maxX(), screen_.maxY());
    cairo_pattern_add_color_stop_rgb(gradient, 0, wallpaperTop[0], wallpaperTop[1],
                                     wallpaperTop[2]);
    cairo_pattern_add_color_stop_rgb(gradient, 1, wallpaperBottom[0], wallpaperBottom[1],
                                     wallpaperBottom[2]);
    cairo_set_source(cr_, gradient);
    cairo_rectangle(cr_, screen_.x, screen_.y, screen_.width, screen_.height);
    cairo_fill(cr_);
    cairo_pattern_destroy(gradient);
    if (!missionControl) return;

    canvas_.fill(Path::rect(screen_), Color::black().withAlpha(missionControlDim));
    const Rect bar{screen_.x, screen_.y, screen_.width, spacesBarHeight};
    canvas_.fill(Path::rect(bar), Color::black().withAlpha(missionControlDim / 2));
    const Font font = Font::system(spacesFontSize);
    const double baseline = bar.midY() + spacesFontSize * baselineBelowMiddle;
    centeredText({"Desktop 1", font, Color::white(), 0}, bar.midX() - spacesLabelSpacing / 2,
                 baseline);
    centeredText({"Desktop 2", font, inactiveSpaceLabel, 0}, bar.midX() + spacesLabelSpacing / 2,
                 baseline);
}

void CairoDesktopPainter::windowShadow(Rect frame, double radius) {
    for (int layer = 1; layer <= static_cast<int>(shadowLayers); ++layer) {
        const double grow = layer * shadowSpread;
        canvas_.fill(
            Path::roundedRect(frame.offsetBy(0, shadowDrop).insetBy(-grow, -grow), radius + grow),
            Color::black().withAlpha(shadowLayerAlpha));
    }
}

void CairoDesktopPainter::window(const SimPaintedWindow& w) {
    const Rect f = w.frame;
    windowShadow(f, windowCornerRadius);
    const Path outline = Path::roundedRect(f, windowCornerRadius);
    canvas_.save();
    canvas_.clip(outline);
    canvas_.fill(Path::rect(f), windowBody);
    canvas_.fill(Path::rect({f.x, f.y, f.width, titleBarHeight}), titleBarColor);
    canvas_.fill(Path::rect({f.x, f.y + titleBarHeight - 1, f.width, 1}), chromeLine);
    // A sidebar in the application's colour and a few lines of content.
    const double sidebar = std::min(f.width * sidebarFraction, sidebarMaximum);
    canvas_.fill(Path::rect({f.x, f.y + titleBarHeight, sidebar, f.height}),
                 w.accent.withAlpha(sidebarAlpha));
    const double freeWidth = f.width - sidebar - 2 * contentInset;
    std::size_t line = 0;
    for (double y = f.y + titleBarHeight + contentInset;
         y + contentLineHeight < f.maxY() - contentInset; y += contentLineStep) {
        const double length = freeWidth * contentLineLengths[line++ % contentLineLengths.size()];
        canvas_.fill(Path::roundedRect({f.x + sidebar + contentInset, y, length, contentLineHeight},
                                       contentLineRadius),
                     contentLine);
    }
    canvas_.restore();
    canvas_.stroke(outline, chromeLine, StrokeStyle{1, LineCap::butt, LineJoin::miter});

    for (std::size_t i = 0; i < trafficLights.size(); ++i) {
        const Rect light{f.x + trafficLightInset + static_cast<double>(i) * trafficLightSpacing,
                         f.y + (titleBarHeight - trafficLightDiameter) / 2, trafficLightDiameter,
                         trafficLightDiameter};
        canvas_.fill(Path::oval(light), trafficLights[i]);
    }
    centeredText({w.title, Font::system(titleFontSize), titleColor, 0}, f.midX(),
                 f.y + titleBarHeight / 2 + titleFontSize * baselineBelowMiddle);
}

void CairoDesktopPainter::menuBar(const std::string& activeApplication, bool dark) {
    canvas_.fill(Path::rect({screen_.x, screen_.y, screen_.width, simMenuBarHeight}),
                 dark ? darkMenuBarColor : menuBarColor);
    canvas_.drawText({activeApplication, Font::system(menuBarFontSize, FontWeight::bold),
                      dark ? darkMenuBarText : menuBarText, 0},
                     {screen_.x + menuBarTextInset,
                      screen_.y + simMenuBarHeight / 2 + menuBarFontSize * baselineBelowMiddle});
}

void CairoDesktopPainter::dock(const std::vector<Color>& tiles) {
    if (tiles.empty()) return;
    const double count = static_cast<double>(tiles.size());
    const double width = count * dockTile + (count - 1) * dockGap + 2 * dockPadding;
    const double height = dockTile + 2 * dockPadding;
    const Rect shelf{screen_.midX() - width / 2, screen_.maxY() - dockBottomGap - height, width,
                     height};
    const Path outline = Path::roundedRect(shelf, dockTileRadius + dockPadding);
    canvas_.fill(outline, dockColor);
    canvas_.stroke(outline, dockRim, StrokeStyle{});
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        const Rect tile{shelf.x + dockPadding + static_cast<double>(i) * (dockTile + dockGap),
                        shelf.y + dockPadding, dockTile, dockTile};
        canvas_.fill(Path::roundedRect(tile, dockTileRadius), tiles[i]);
    }
}

void CairoDesktopPainter::thumbnail(Rect frame, const std::string& label,
                                    const SimPaintedWindow* source, bool highlighted) {
    if (source != nullptr && !source->frame.isEmpty()) {
        canvas_.save();
        canvas_.translate(frame.x, frame.y);
        canvas_.scale(frame.width / source->frame.width, frame.height / source->frame.height);
        SimPaintedWindow atOrigin = *source;
        atOrigin.frame = {0, 0, source->frame.width, source->frame.height};
        window(atOrigin);
        canvas_.restore();
    } else {
        canvas_.fill(Path::roundedRect(frame, windowCornerRadius / 2), windowBody);
    }
    if (highlighted) {
        const Rect ring = frame.insetBy(-highlightOffset, -highlightOffset);
        canvas_.stroke(Path::roundedRect(ring, highlightRadius), highlightColor,
                       StrokeStyle{highlightWidth, LineCap::butt, LineJoin::round});
    }
    if (label.empty()) return;
    const TextRun run{label, Font::system(labelFontSize), Color::white(), 0};
    const double width = canvas_.textWidth(run) + 2 * labelPaddingX;
    const Rect capsule{frame.midX() - width / 2, frame.maxY() + labelGap, width, labelHeight};
    canvas_.fill(Path::roundedRect(capsule, labelHeight / 2), labelCapsule);
    centeredText(run, capsule.midX(), capsule.midY() + labelFontSize * baselineBelowMiddle);
}

void CairoDesktopPainter::pointer(Point tip) {
    // The classic arrow, drawn black on a white rim.
    Path arrow;
    arrow.moveTo(tip);
    for (const Point& p : arrowOutline)
        arrow.lineTo({tip.x + p.x, tip.y + p.y});
    arrow.close();
    canvas_.stroke(arrow, Color::white(),
                   StrokeStyle{arrowRimWidth, LineCap::round, LineJoin::round});
    canvas_.fill(arrow, Color::black());
}

void CairoDesktopPainter::centeredText(const TextRun& run, double midX, double baseline) {
    canvas_.drawText(run, {midX - canvas_.textWidth(run) / 2, baseline});
}

}  // namespace vistrel
