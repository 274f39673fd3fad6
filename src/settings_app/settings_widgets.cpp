#include "settings_app/settings_widgets.h"

#include <algorithm>

#include "settings_app/settings_palette.h"
#include "settings_app/settings_text.h"

namespace vistrel {

namespace SettingsWidgets {

namespace {

constexpr double knobInset = 2;
constexpr double controlRadius = 6;
constexpr double textInset = 10;
constexpr double chevronBoxWidth = 18;
constexpr double segmentInset = 2;
constexpr double trackHeight = 4;
constexpr double sliderKnob = 20;
constexpr double statusLightSide = 8;
constexpr double hairline = 0.5;

// A soft shadow under a raised part (a knob, the chosen segment).
void drawShadow(Canvas& canvas, const Path& shape) {
    canvas.save();
    canvas.translate(0, 0.5);
    canvas.fill(shape, Color::black().withAlpha(0.18));
    canvas.restore();
}

void drawBezel(Canvas& canvas, Rect rect, const SettingsInk& ink) {
    const Path bezel = Path::roundedRect(rect, controlRadius);
    drawShadow(canvas, bezel);
    canvas.fill(bezel, ink(SettingsPalette::control));
    canvas.stroke(Path::roundedRect(rect.insetBy(hairline / 2, hairline / 2), controlRadius),
                  ink(SettingsPalette::controlBorder), {hairline});
}

// The up-and-down chevrons of a pop-up button, centred on `centre`.
void drawChevrons(Canvas& canvas, Point centre, Color color) {
    constexpr double half = 3;
    constexpr double rise = 2.5;
    constexpr double apart = 3;
    const StrokeStyle style{1.4, LineCap::round, LineJoin::round};
    Path up;
    up.moveTo({centre.x - half, centre.y - apart + rise / 2})
        .lineTo({centre.x, centre.y - apart - rise / 2})
        .lineTo({centre.x + half, centre.y - apart + rise / 2});
    Path down;
    down.moveTo({centre.x - half, centre.y + apart - rise / 2})
        .lineTo({centre.x, centre.y + apart + rise / 2})
        .lineTo({centre.x + half, centre.y + apart - rise / 2});
    canvas.stroke(up, color, style);
    canvas.stroke(down, color, style);
}

TextRun label(const std::string& text, Color color) {
    return {text, controlFont(), color};
}

}  // namespace

Font controlFont() {
    return Font::system(controlFontSize);
}

void drawSwitch(Canvas& canvas, Point origin, bool on, const SettingsInk& ink) {
    const Rect track = Rect::of(origin, switchSize);
    canvas.fill(Path::roundedRect(track, track.height / 2),
                ink(on ? SettingsPalette::accent : SettingsPalette::track));
    const double side = track.height - 2 * knobInset;
    const double x = on ? track.maxX() - knobInset - side : track.minX() + knobInset;
    const Path knob = Path::oval({x, track.y + knobInset, side, side});
    drawShadow(canvas, knob);
    // A disabled control keeps its knob solid over the faded track, as AppKit draws it.
    canvas.fill(knob, SettingsPalette::knob.resolved(ink.appearance));
}

double popUpWidth(const std::string& title) {
    return SettingsText::width(label(title, Color::black())) + 2 * textInset + chevronBoxWidth;
}

void drawPopUp(Canvas& canvas, Rect rect, const std::string& title, const SettingsInk& ink) {
    drawBezel(canvas, rect, ink);
    SettingsText::drawLeft(canvas, label(title, ink(SettingsPalette::label)), rect.x + textInset,
                           rect.midY());
    drawChevrons(canvas, {rect.maxX() - chevronBoxWidth / 2 - 3, rect.midY()},
                 ink(SettingsPalette::secondaryLabel));
}

double segmentedWidth(const std::vector<std::string>& titles) {
    double widest = 0;
    for (const std::string& title : titles) {
        widest = std::max(widest, SettingsText::width(label(title, Color::black())));
    }
    return (widest + 2 * textInset + 2 * segmentInset) * static_cast<double>(titles.size());
}

void drawSegmented(Canvas& canvas, Rect rect, const std::vector<std::string>& titles,
                   std::size_t selected, const SettingsInk& ink) {
    canvas.fill(Path::roundedRect(rect, controlRadius), ink(SettingsPalette::track));
    const double width = rect.width / static_cast<double>(titles.size());
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const Rect segment{rect.x + width * static_cast<double>(i), rect.y, width, rect.height};
        if (i == selected) {
            const Path raised = Path::roundedRect(segment.insetBy(segmentInset, segmentInset),
                                                  controlRadius - segmentInset);
            drawShadow(canvas, raised);
            canvas.fill(raised, ink(SettingsPalette::control));
        } else if (i + 1 != selected && i + 1 < titles.size()) {
            // A divider between two segments that are not chosen.
            canvas.fill(
                Path::rect({segment.maxX() - hairline, segment.y + 5, 1, segment.height - 10}),
                ink(SettingsPalette::separator));
        }
        SettingsText::drawCentred(canvas, label(titles[i], ink(SettingsPalette::label)),
                                  segment.mid());
    }
}

void drawSlider(Canvas& canvas, Rect rect, double fraction, const SettingsInk& ink) {
    const double travel = rect.width - sliderKnob;
    const double knobX = rect.x + travel * std::clamp(fraction, 0.0, 1.0);
    const Rect track{rect.x + sliderKnob / 2, rect.midY() - trackHeight / 2, travel, trackHeight};
    canvas.fill(Path::roundedRect(track, trackHeight / 2), ink(SettingsPalette::track));
    canvas.fill(Path::roundedRect({track.x, track.y, knobX - rect.x, trackHeight}, trackHeight / 2),
                ink(SettingsPalette::accent));
    const Path knob = Path::oval({knobX, rect.midY() - sliderKnob / 2, sliderKnob, sliderKnob});
    drawShadow(canvas, knob);
    canvas.fill(knob, SettingsPalette::knob.resolved(ink.appearance));
    canvas.stroke(knob, ink(SettingsPalette::controlBorder), {hairline});
}

double pushButtonWidth(const std::string& title) {
    constexpr double minimumWidth = 80;
    return std::max(minimumWidth, SettingsText::width(label(title, Color::black())) + 2 * 14);
}

void drawPushButton(Canvas& canvas, Rect rect, const std::string& title, bool isDefault,
                    const SettingsInk& ink) {
    if (isDefault) {
        canvas.fill(Path::roundedRect(rect, controlRadius), ink(SettingsPalette::accent));
    } else {
        drawBezel(canvas, rect, ink);
    }
    const Color text = ink(isDefault ? SettingsPalette::onAccent : SettingsPalette::label);
    SettingsText::drawCentred(canvas, label(title, text), rect.mid());
}

void drawStatusLight(Canvas& canvas, Point centre, bool good, const SettingsInk& ink) {
    canvas.fill(Path::oval({centre.x - statusLightSide / 2, centre.y - statusLightSide / 2,
                            statusLightSide, statusLightSide}),
                ink(good ? SettingsPalette::good : SettingsPalette::attention));
}

}  // namespace SettingsWidgets

}  // namespace vistrel
