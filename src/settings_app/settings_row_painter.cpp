#include "settings_app/settings_row_painter.h"

#include <algorithm>
#include <cmath>

#include "settings_app/layout_list_painter.h"
#include "settings_app/settings_palette.h"
#include "settings_app/settings_text.h"
#include "settings_app/settings_widgets.h"
#include "ui/kit/dfkit_key_text.h"

namespace vistrel {

namespace {

constexpr double labelSize = 13;
constexpr double helpSize = 11;
constexpr double labelLine = 16;
constexpr double helpLine = 14;
constexpr double paddingY = 11;
constexpr double accessoryGap = 16;
constexpr double keysGap = 14;
constexpr double pictureInset = 12;
constexpr std::size_t maxHelpLines = 3;
constexpr std::size_t maxValueLines = 2;
// A status, text or link value takes at most this share of its row.
constexpr double valueShare = 0.6;
constexpr double statusLightRoom = 14;
constexpr double sliderValueWidth = 44;

TextRun labelRun(const std::string& text, Color color) {
    return {text, Font::system(labelSize), color};
}

TextRun helpRun(const std::string& text, Color color) {
    return {text, Font::system(helpSize), color};
}

std::string valueText(const SettingsModel& model, const Control& control) {
    return control.kind == ControlKind::status ? model.status(control.id).text : control.value;
}

std::vector<std::string> optionTitles(const Control& control) {
    std::vector<std::string> titles;
    for (const ChoiceOption& option : control.options)
        titles.push_back(option.title);
    return titles;
}

std::string sliderValue(const Control& control, double value) {
    return std::to_string(static_cast<long>(std::lround(value))) + " " + control.range.unit;
}

DFKitKeyText keyText(const Control& control, const SettingsInk& ink) {
    const Color color = ink(SettingsPalette::secondaryLabel);
    return DFKitKeyText(control.keys, Font::system(labelSize), dynamicColor(color, color));
}

}  // namespace

SettingsRowPainter::Accessory SettingsRowPainter::accessory(const Control& control,
                                                            double rowWidth) const {
    const SettingsInk ink{appearance_};
    switch (control.kind) {
        case ControlKind::toggle:
            return {SettingsWidgets::switchSize.width, {}};
        case ControlKind::shortcutKeys:
            return {SettingsWidgets::switchSize.width + keysGap + keyText(control, ink).width(),
                    {}};
        case ControlKind::choice: {
            if (control.choiceStyle == ChoiceStyle::segmented) {
                return {SettingsWidgets::segmentedWidth(optionTitles(control)), {}};
            }
            double widest = 0;
            for (const std::string& title : optionTitles(control)) {
                widest = std::max(widest, SettingsWidgets::popUpWidth(title));
            }
            return {widest, {}};
        }
        case ControlKind::slider:
            return {SettingsWidgets::sliderWidth + sliderValueWidth, {}};
        case ControlKind::button:
            return {SettingsWidgets::pushButtonWidth(control.buttonTitle), {}};
        case ControlKind::status:
        case ControlKind::text:
        case ControlKind::link: {
            const double room = control.kind == ControlKind::status ? statusLightRoom : 0;
            const double maxWidth = rowWidth * valueShare - room;
            const TextRun run = labelRun(valueText(model_, control), Color::black());
            auto lines = SettingsText::lines(run, maxWidth, maxValueLines);
            double widest = 0;
            for (const std::string& line : lines) {
                widest = std::max(widest, SettingsText::width(labelRun(line, Color::black())));
            }
            return {widest + room, std::move(lines)};
        }
        case ControlKind::picture:
        case ControlKind::layoutList:
            return {};
    }
    return {};
}

double SettingsRowPainter::labelWidth(const Control& control, double rowWidth) const {
    const double inner = rowWidth - 2 * insetX;
    return inner - accessory(control, rowWidth).width - accessoryGap;
}

std::vector<std::string> SettingsRowPainter::helpLines(const Control& control, double width) const {
    if (control.help.empty()) return {};
    return SettingsText::lines(helpRun(control.help, Color::black()), labelWidth(control, width),
                               maxHelpLines);
}

double SettingsRowPainter::height(const Control& control, double width) const {
    if (control.kind == ControlKind::picture) return control.pictureSize.height + 2 * pictureInset;
    if (control.kind == ControlKind::layoutList) {
        return LayoutListPainter(model_, appearance_).height();
    }
    const auto help = helpLines(control, width);
    const std::size_t valueLines = accessory(control, width).lines.size();
    const double text = labelLine + helpLine * static_cast<double>(help.size());
    const double value = labelLine * static_cast<double>(std::max<std::size_t>(valueLines, 1));
    return std::max(minimumHeight, std::max(text, value) + 2 * paddingY);
}

void SettingsRowPainter::paint(Canvas& canvas, const Control& control, Rect row) const {
    const SettingsInk ink = SettingsInk{appearance_}.disabledUnless(model_.isEnabled(control.id));
    if (control.kind == ControlKind::picture) {
        paintPicture(canvas, control, row);
        return;
    }
    if (control.kind == ControlKind::layoutList) {
        LayoutListPainter(model_, appearance_).paint(canvas, row);
        return;
    }
    const auto help = helpLines(control, row.width);
    const double textHeight = labelLine + helpLine * static_cast<double>(help.size());
    double y = row.midY() - textHeight / 2 + labelLine / 2;
    const double x = row.x + insetX;
    const TextRun label = labelRun(control.label, ink(SettingsPalette::label));
    SettingsText::drawLeft(canvas, label, x, y);
    y += labelLine / 2 + helpLine / 2;
    for (const std::string& line : help) {
        SettingsText::drawLeft(canvas, helpRun(line, ink(SettingsPalette::secondaryLabel)), x, y);
        y += helpLine;
    }
    paintAccessory(canvas, control, row, accessory(control, row.width), ink);
}

void SettingsRowPainter::paintAccessory(Canvas& canvas, const Control& control, Rect row,
                                        const Accessory& accessory, const SettingsInk& ink) const {
    const double right = row.maxX() - insetX;
    const double left = right - accessory.width;
    const double top = row.midY() - SettingsWidgets::controlHeight / 2;
    const Rect box{left, top, accessory.width, SettingsWidgets::controlHeight};
    switch (control.kind) {
        case ControlKind::shortcutKeys:
            keyText(control, ink).draw(canvas, appearance_, left, row.midY());
            [[fallthrough]];
        case ControlKind::toggle:
            SettingsWidgets::drawSwitch(canvas,
                                        {right - SettingsWidgets::switchSize.width,
                                         row.midY() - SettingsWidgets::switchSize.height / 2},
                                        model_.isOn(control.id), ink);
            return;
        case ControlKind::choice: {
            const std::string chosen = model_.choice(control.id);
            const auto found =
                std::find_if(control.options.begin(), control.options.end(),
                             [&](const ChoiceOption& option) { return option.value == chosen; });
            const auto index = static_cast<std::size_t>(found - control.options.begin());
            if (control.choiceStyle == ChoiceStyle::segmented) {
                SettingsWidgets::drawSegmented(canvas, box, optionTitles(control), index, ink);
            } else {
                SettingsWidgets::drawPopUp(
                    canvas, box, found == control.options.end() ? chosen : found->title, ink);
            }
            return;
        }
        case ControlKind::slider: {
            const double value = model_.number(control.id);
            const SliderRange& range = control.range;
            const double span = range.maximum - range.minimum;
            const double fraction = span > 0 ? (value - range.minimum) / span : 0;
            SettingsWidgets::drawSlider(
                canvas, {left, top, SettingsWidgets::sliderWidth, box.height}, fraction, ink);
            SettingsText::drawRight(
                canvas, labelRun(sliderValue(control, value), ink(SettingsPalette::secondaryLabel)),
                right, row.midY());
            return;
        }
        case ControlKind::button:
            SettingsWidgets::drawPushButton(canvas, box, control.buttonTitle, false, ink);
            return;
        case ControlKind::status:
        case ControlKind::text:
        case ControlKind::link:
            paintValueLines(canvas, control, row, accessory, ink);
            return;
        case ControlKind::picture:
        case ControlKind::layoutList:
            return;
    }
}

// A value's lines right-aligned, centred on the row; a status's light before its first line.
void SettingsRowPainter::paintValueLines(Canvas& canvas, const Control& control, Rect row,
                                         const Accessory& accessory, const SettingsInk& ink) const {
    const double right = row.maxX() - insetX;
    const Color color =
        ink(control.kind == ControlKind::link     ? SettingsPalette::accent
            : control.kind == ControlKind::status ? SettingsPalette::label
                                                  : SettingsPalette::secondaryLabel);
    double y = row.midY() - labelLine * static_cast<double>(accessory.lines.size() - 1) / 2;
    for (std::size_t i = 0; i < accessory.lines.size(); ++i) {
        const TextRun run = labelRun(accessory.lines[i], color);
        SettingsText::drawRight(canvas, run, right, y);
        if (i == 0 && control.kind == ControlKind::status) {
            const double textLeft = right - SettingsText::width(run);
            SettingsWidgets::drawStatusLight(canvas, {textLeft - statusLightRoom / 2 - 2, y},
                                             model_.status(control.id).good, ink);
        }
        y += labelLine;
    }
}

void SettingsRowPainter::paintPicture(Canvas& canvas, const Control& control, Rect row) const {
    const auto picture = model_.picture(control.id, appearance_);
    if (!picture) return;
    canvas.save();
    canvas.translate(row.midX() - control.pictureSize.width / 2, row.y + pictureInset);
    picture->replay(canvas);
    canvas.restore();
}

}  // namespace vistrel
