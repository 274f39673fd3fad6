#include "settings_app/layout_list_painter.h"

#include <algorithm>
#include <array>

#include "settings_app/layout_windows_painter.h"
#include "settings_app/settings_ink.h"
#include "settings_app/settings_palette.h"
#include "settings_app/settings_text.h"
#include "settings_app/settings_widgets.h"

namespace vistrel {

namespace {

constexpr double inset = 12;
constexpr double rowHeight = 28;
constexpr double emptyHeight = 64;
constexpr double tableRadius = 6;
constexpr double gap = 8;
constexpr double squareButton = 24;
constexpr double messageLine = 14;
constexpr double nameSize = 13;
constexpr double detailSize = 11;
constexpr double glyphSide = 14;
constexpr double buttonSpacing = 4;
constexpr double warningRoom = 14;
constexpr double selectionInset = 4;
constexpr double selectionRadius = 5;

// The buttons under the table that act on the chosen row.
enum class RowButton { remove, moveUp, moveDown };
constexpr std::array rowButtons = {RowButton::remove, RowButton::moveUp, RowButton::moveDown};

// A minus, or a chevron pointing up or down, centred in the button.
Path rowButtonMark(RowButton button, Point centre) {
    constexpr double half = glyphSide / 2 - 2;
    constexpr double rise = 3;
    Path mark;
    switch (button) {
        case RowButton::remove:
            return mark.moveTo({centre.x - half, centre.y}).lineTo({centre.x + half, centre.y});
        case RowButton::moveUp:
            return mark.moveTo({centre.x - half, centre.y + rise})
                .lineTo({centre.x, centre.y - rise})
                .lineTo({centre.x + half, centre.y + rise});
        case RowButton::moveDown:
            return mark.moveTo({centre.x - half, centre.y - rise})
                .lineTo({centre.x, centre.y + rise})
                .lineTo({centre.x + half, centre.y - rise});
    }
    return mark;
}

}  // namespace

double LayoutListPainter::tableHeight() const {
    const std::size_t count = model_.layouts().size();
    return count == 0 ? emptyHeight : rowHeight * static_cast<double>(count);
}

double LayoutListPainter::height() const {
    const double message = model_.layoutsMessage().empty() ? 0 : gap + messageLine;
    const double windows = LayoutWindowsPainter(model_, appearance_).height();
    return inset + tableHeight() + gap + SettingsWidgets::controlHeight +
           (windows > 0 ? gap + windows : 0) + message + inset;
}

void LayoutListPainter::paint(Canvas& canvas, Rect row) const {
    const Rect table{row.x + inset, row.y + inset, row.width - 2 * inset, tableHeight()};
    paintTable(canvas, table);
    const Rect bar{table.x, table.maxY() + gap, table.width, SettingsWidgets::controlHeight};
    paintButtons(canvas, bar);
    // The chosen layout's windows stand between the buttons and the message.
    const LayoutWindowsPainter windows(model_, appearance_);
    double bottom = bar.maxY();
    if (const double windowsHeight = windows.height(); windowsHeight > 0) {
        windows.paint(canvas, {table.x, bottom + gap, table.width, windowsHeight});
        bottom += gap + windowsHeight;
    }
    const std::string& message = model_.layoutsMessage();
    if (message.empty()) return;
    const SettingsInk ink{appearance_};
    const double midY = bottom + gap + messageLine / 2;
    double x = table.x;
    if (model_.layoutsMessageIsWarning()) {
        SettingsWidgets::drawStatusLight(canvas, {x + warningRoom / 2 - 2, midY}, false, ink);
        x += warningRoom;
    }
    const Font font = Font::system(detailSize);
    const TextRun run{SettingsText::fitted({message, font, {}}, table.maxX() - x), font,
                      ink(SettingsPalette::secondaryLabel)};
    SettingsText::drawLeft(canvas, run, x, midY);
}

void LayoutListPainter::paintTable(Canvas& canvas, Rect table) const {
    const SettingsInk ink{appearance_};
    const Path frame = Path::roundedRect(table, tableRadius);
    canvas.fill(frame, ink(SettingsPalette::table));
    canvas.stroke(frame, ink(SettingsPalette::boxBorder), {1});
    const auto layouts = model_.layouts();
    if (layouts.empty()) {
        const TextRun empty{"No saved layouts. Save one from the Vistrel menu or the shelf.",
                            Font::system(nameSize), ink(SettingsPalette::secondaryLabel)};
        SettingsText::drawCentred(canvas, empty, table.mid());
        return;
    }
    const auto chosen = model_.selectedLayout();
    double y = table.y;
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        const Rect line{table.x, y, table.width, rowHeight};
        // The chosen row is filled with the accent colour, as a focused table shows it.
        const bool selected = chosen == layouts[i].id;
        if (selected) {
            canvas.fill(Path::roundedRect(line.insetBy(selectionInset, 2), selectionRadius),
                        ink(SettingsPalette::accent));
        } else if (i > 0 && chosen != layouts[i - 1].id) {
            canvas.fill(Path::rect({line.x + inset, line.y, line.width - 2 * inset, 1}),
                        ink(SettingsPalette::separator));
        }
        const TextRun detail{
            layouts[i].detail, Font::system(detailSize),
            ink(selected ? SettingsPalette::onAccent : SettingsPalette::secondaryLabel)};
        const double detailWidth = SettingsText::width(detail);
        SettingsText::drawRight(canvas, detail, line.maxX() - inset, line.midY());
        const TextRun name{layouts[i].name, Font::system(nameSize),
                           ink(selected ? SettingsPalette::onAccent : SettingsPalette::label)};
        const TextRun shown{SettingsText::fitted(name, line.width - 3 * inset - detailWidth),
                            name.font, name.color};
        SettingsText::drawLeft(canvas, shown, line.x + inset, line.midY());
        y += rowHeight;
    }
}

// Remove, move up, move down at the left; Import… and Export… at the right.
void LayoutListPainter::paintButtons(Canvas& canvas, Rect bar) const {
    const bool any = !model_.layouts().empty();
    const SettingsInk ink = SettingsInk{appearance_}.disabledUnless(any);
    double x = bar.x;
    for (const RowButton button : rowButtons) {
        const Rect box{x, bar.y, squareButton, bar.height};
        SettingsWidgets::drawPushButton(canvas, box, "", false, ink);
        canvas.stroke(rowButtonMark(button, box.mid()), ink(SettingsPalette::label),
                      {1.6, LineCap::round, LineJoin::round});
        x += squareButton + buttonSpacing;
    }
    // Export needs something to export; Import is always there.
    const std::string exportTitle = "Export…";
    const std::string importTitle = "Import…";
    const double exportWidth = SettingsWidgets::pushButtonWidth(exportTitle);
    const double importWidth = SettingsWidgets::pushButtonWidth(importTitle);
    const Rect exportBox{bar.maxX() - exportWidth, bar.y, exportWidth, bar.height};
    SettingsWidgets::drawPushButton(canvas, exportBox, exportTitle, false, ink);
    SettingsWidgets::drawPushButton(
        canvas, {exportBox.x - gap - importWidth, bar.y, importWidth, bar.height}, importTitle,
        false, SettingsInk{appearance_});
}

}  // namespace vistrel
