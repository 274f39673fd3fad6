#include "settings_app/settings_pictures.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "session/engine.h"
#include "settings/settings.h"
#include "settings_app/settings_palette.h"
#include "settings_app/settings_text.h"
#include "tracking/overlay_layout.h"
#include "ui/kit/dfkit_mark.h"
#include "views/overlay_view.h"
#include "views/theme.h"

namespace vistrel {

namespace {

constexpr double backdropRadius = 10;
constexpr double thumbnailRadius = 5;
constexpr double thumbnailBarHeight = 11;
constexpr double hoverRingWidth = 2.5;
constexpr double captionSize = 11;
// The pointer rests on the close button towards its lower right, leaving its glyph in view.
constexpr double pointerOffset = 0.32;
constexpr double themeTileRadius = 8;
constexpr double selectionRingWidth = 2;
constexpr double markSide = 64;
constexpr double appNameSize = 20;
constexpr double taglineSize = 12;

// A window thumbnail in Mission Control, as fractions of the backdrop.
struct ThumbnailPlace {
    double x, y, width, height;
};
constexpr std::array<ThumbnailPlace, 3> thumbnailPlaces = {{
    {0.06, 0.30, 0.24, 0.42},
    {0.37, 0.22, 0.32, 0.60},  // the hovered one
    {0.76, 0.36, 0.18, 0.34},
}};
constexpr std::size_t hoveredThumbnail = 1;

Rect placed(const ThumbnailPlace& place, Size size) {
    return {place.x * size.width, place.y * size.height, place.width * size.width,
            place.height * size.height};
}

// The overlay draws in a space with y up; a button is symmetric about its centre line, so
// it is drawn upright here by mirroring its own square.
void drawButtonUpright(Canvas& canvas, Rect rect, const Theme& theme, OverlayButton button) {
    canvas.save();
    canvas.translate(0, rect.minY() + rect.maxY());
    canvas.scale(1, -1);
    OverlayView::drawButton(canvas, rect, theme.look(button), button, false);
    canvas.restore();
}

void drawStrip(Canvas& canvas, const OverlayLayout& layout, const Theme& theme) {
    for (const OverlayLayout::Item& item : layout.items) {
        drawButtonUpright(canvas, item.rect, theme, item.kind);
    }
}

// A window's thumbnail: a title bar and a few lines of content.
void drawThumbnail(Canvas& canvas, Rect frame, Appearance appearance) {
    canvas.fill(Path::roundedRect(frame, thumbnailRadius),
                SettingsPalette::thumbnail.resolved(appearance));
    canvas.save();
    canvas.clip(Path::roundedRect(frame, thumbnailRadius));
    canvas.fill(Path::rect({frame.x, frame.y, frame.width, thumbnailBarHeight}),
                SettingsPalette::thumbnailBar.resolved(appearance));
    canvas.restore();
    constexpr double lineHeight = 4;
    constexpr double lineSpacing = 9;
    constexpr std::array widths = {0.7, 0.55, 0.8, 0.4};
    const double inset = frame.width * 0.1;
    double y = frame.y + thumbnailBarHeight + lineSpacing;
    for (const double width : widths) {
        if (y + lineHeight > frame.maxY() - lineSpacing / 2) break;
        canvas.fill(
            Path::roundedRect({frame.x + inset, y, (frame.width - 2 * inset) * width, lineHeight},
                              lineHeight / 2),
            SettingsPalette::tertiaryLabel.resolved(appearance));
        y += lineSpacing;
    }
}

// The arrow pointer with its tip at `tip`.
void drawPointer(Canvas& canvas, Point tip) {
    Path arrow;
    arrow.moveTo(tip)
        .lineTo({tip.x, tip.y + 16})
        .lineTo({tip.x + 4, tip.y + 12.5})
        .lineTo({tip.x + 7, tip.y + 18.5})
        .lineTo({tip.x + 9.5, tip.y + 17.5})
        .lineTo({tip.x + 6.5, tip.y + 11.5})
        .lineTo({tip.x + 11.5, tip.y + 11.5})
        .close();
    canvas.fill(arrow, Color::black());
    canvas.stroke(arrow, Color::white(), {1.2, LineCap::round, LineJoin::round});
}

Theme chosenTheme(const Settings& settings) {
    return Theme::fromRaw(settings.buttonTheme().value_or("")).value_or(Theme::classic);
}

}  // namespace

std::string themeTitle(Theme theme) {
    std::string title(theme.rawValue());
    if (!title.empty())
        title.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(title.front())));
    return title;
}

std::shared_ptr<const DisplayList> SettingsPictures::draw(PictureKind kind, Size size,
                                                          Appearance appearance) const {
    RecordingCanvas canvas(true);
    switch (kind) {
        case PictureKind::welcome:
            drawMissionControl(canvas, size, appearance, true);
            break;
        case PictureKind::buttonsPreview:
            drawMissionControl(canvas, size, appearance, false);
            break;
        case PictureKind::themePreview:
            drawThemes(canvas, size, appearance);
            break;
        case PictureKind::appIcon:
            drawAppIcon(canvas, size, appearance);
            break;
    }
    return canvas.finish();
}

// Mission Control in small: three thumbnails, the middle one hovered with the buttons over
// its corner and the pointer on the close button. The welcome picture shows every button;
// the preview shows the ones the user turned on.
void SettingsPictures::drawMissionControl(Canvas& canvas, Size size, Appearance appearance,
                                          bool allButtons) const {
    const Settings settings(store_);
    const Rect bounds{0, 0, size.width, size.height};
    canvas.fill(Path::roundedRect(bounds, backdropRadius),
                SettingsPalette::desktop.resolved(appearance));
    canvas.save();
    canvas.clip(Path::roundedRect(bounds, backdropRadius));
    for (const ThumbnailPlace& place : thumbnailPlaces) {
        drawThumbnail(canvas, placed(place, size), appearance);
    }
    const Rect hovered = placed(thumbnailPlaces[hoveredThumbnail], size);
    canvas.stroke(Path::roundedRect(hovered.insetBy(-hoverRingWidth / 2, -hoverRingWidth / 2),
                                    thumbnailRadius + hoverRingWidth / 2),
                  SettingsPalette::accent.resolved(appearance), {hoverRingWidth});
    const std::vector<OverlayButton> buttons =
        allButtons ? std::vector(allOverlayButtons.begin(), allOverlayButtons.end())
                   : settings.enabledButtons();
    const OverlayLayout layout =
        OverlayLayout::make(hovered, settings.buttonSize(), buttons, Engine::buttonGap);
    drawStrip(canvas, layout, chosenTheme(settings));
    if (!layout.items.empty()) {
        const Rect close = layout.items.front().rect;
        drawPointer(canvas, {close.midX() + close.width * pointerOffset,
                             close.midY() + close.height * pointerOffset});
    }
    canvas.restore();
}

// The five themes side by side, each a tile with the whole strip at the chosen size and the
// theme's name; the chosen theme's tile is ringed in the accent colour.
void SettingsPictures::drawThemes(Canvas& canvas, Size size, Appearance appearance) const {
    const Settings settings(store_);
    const Theme chosen = chosenTheme(settings);
    const double side = settings.buttonSize();
    constexpr double tileGap = 8;
    constexpr double captionHeight = 18;
    const double tileWidth =
        (size.width - tileGap * (allThemes.size() - 1)) / static_cast<double>(allThemes.size());
    const double tileHeight = size.height - captionHeight;
    const double count = static_cast<double>(allOverlayButtons.size());
    const double stripWidth = side * count + Engine::buttonGap * (count - 1);
    double x = 0;
    for (const Theme theme : allThemes) {
        const Rect tile{x, selectionRingWidth, tileWidth, tileHeight - 2 * selectionRingWidth};
        canvas.fill(Path::roundedRect(tile, themeTileRadius),
                    SettingsPalette::desktop.resolved(appearance));
        if (theme == chosen) {
            canvas.stroke(
                Path::roundedRect(tile.insetBy(-selectionRingWidth / 2, -selectionRingWidth / 2),
                                  themeTileRadius + selectionRingWidth / 2),
                SettingsPalette::accent.resolved(appearance), {selectionRingWidth});
        }
        double buttonX = tile.midX() - stripWidth / 2;
        for (const OverlayButton button : allOverlayButtons) {
            drawButtonUpright(canvas, {buttonX, tile.midY() - side / 2, side, side}, theme, button);
            buttonX += side + Engine::buttonGap;
        }
        const TextRun caption{
            themeTitle(theme), Font::system(captionSize, FontWeight::medium),
            (theme == chosen ? SettingsPalette::label : SettingsPalette::secondaryLabel)
                .resolved(appearance)};
        SettingsText::drawCentred(canvas, caption, {tile.midX(), tileHeight + captionHeight / 2});
        x += tileWidth + tileGap;
    }
}

// The app's mark over its name and what it does.
void SettingsPictures::drawAppIcon(Canvas& canvas, Size size, Appearance appearance) const {
    const double top = (size.height - markSide - appNameSize - taglineSize - 16) / 2;
    const auto mark =
        markImage(DFKitMark::vistrel, markSide, SettingsPalette::accent.resolved(appearance));
    canvas.save();
    canvas.translate(size.width / 2 - markSide / 2, top);
    mark->replay(canvas);
    canvas.restore();
    const TextRun name{"Vistrel", Font::system(appNameSize, FontWeight::bold),
                       SettingsPalette::label.resolved(appearance)};
    const double nameMid = top + markSide + 6 + appNameSize / 2;
    SettingsText::drawCentred(canvas, name, {size.width / 2, nameMid});
    const TextRun tagline{"Buttons, shortcuts and layouts for Mission Control",
                          Font::system(taglineSize),
                          SettingsPalette::secondaryLabel.resolved(appearance)};
    SettingsText::drawCentred(canvas, tagline, {size.width / 2, nameMid + appNameSize / 2 + 12});
}

}  // namespace vistrel
