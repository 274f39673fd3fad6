#include "settings_app/layout_windows_painter.h"

#include <algorithm>

#include "settings_app/settings_ink.h"
#include "settings_app/settings_palette.h"
#include "settings_app/settings_text.h"
#include "settings_app/settings_widgets.h"

namespace vistrel {

namespace {

constexpr double inset = 12;
constexpr double headerHeight = 34;
constexpr double windowHeight = 24;
constexpr double boxRadius = 6;
constexpr double titleSize = 13;
constexpr double textSize = 12;
// The applications' names stand in a column this wide; the documents and titles follow.
constexpr double appColumn = 150;

std::string nameOf(const std::vector<LayoutRow>& layouts, const UUID& id) {
    const auto found = std::ranges::find(layouts, id, &LayoutRow::id);
    return found == layouts.end() ? std::string() : found->name;
}

}  // namespace

double LayoutWindowsPainter::height() const {
    if (!model_.selectedLayout()) return 0;
    const std::size_t lines = std::max<std::size_t>(model_.selectedLayoutWindows().size(), 1);
    return headerHeight + windowHeight * static_cast<double>(lines) + inset / 2;
}

void LayoutWindowsPainter::paint(Canvas& canvas, Rect box) const {
    const auto chosen = model_.selectedLayout();
    if (!chosen) return;
    const SettingsInk ink{appearance_};
    const Path frame = Path::roundedRect(box, boxRadius);
    canvas.fill(frame, ink(SettingsPalette::table));
    canvas.stroke(frame, ink(SettingsPalette::boxBorder), {1});

    const std::string copy(copyTitle);
    const double copyWidth = SettingsWidgets::pushButtonWidth(copy);
    const double headerMid = box.y + headerHeight / 2;
    SettingsWidgets::drawPushButton(
        canvas,
        {box.maxX() - inset - copyWidth, headerMid - SettingsWidgets::controlHeight / 2, copyWidth,
         SettingsWidgets::controlHeight},
        copy, false, ink);
    const TextRun title{heading(nameOf(model_.layouts(), *chosen)),
                        Font::system(titleSize, FontWeight::semibold), ink(SettingsPalette::label)};
    const double titleRoom = box.width - 3 * inset - copyWidth;
    SettingsText::drawLeft(canvas,
                           {SettingsText::fitted(title, titleRoom), title.font, title.color},
                           box.x + inset, headerMid);
    canvas.fill(Path::rect({box.x + inset, box.y + headerHeight - 1, box.width - 2 * inset, 1}),
                ink(SettingsPalette::separator));
    paintWindows(canvas, {box.x, box.y + headerHeight, box.width, box.height - headerHeight},
                 model_.selectedLayoutWindows());
}

void LayoutWindowsPainter::paintWindows(Canvas& canvas, Rect box,
                                        const std::vector<LayoutWindowRow>& windows) const {
    const SettingsInk ink{appearance_};
    const Font font = Font::system(textSize);
    if (windows.empty()) {
        const TextRun none{std::string(noWindows), font, ink(SettingsPalette::secondaryLabel)};
        SettingsText::drawLeft(canvas, none, box.x + inset, box.y + windowHeight / 2);
        return;
    }
    double midY = box.y + windowHeight / 2;
    for (const LayoutWindowRow& window : windows) {
        const TextRun app{window.app, font, ink(SettingsPalette::label)};
        SettingsText::drawLeft(canvas,
                               {SettingsText::fitted(app, appColumn - inset), font, app.color},
                               box.x + inset, midY);
        const TextRun detail{window.detail, font, ink(SettingsPalette::secondaryLabel)};
        const double detailX = box.x + inset + appColumn;
        SettingsText::drawLeft(
            canvas,
            {SettingsText::fitted(detail, box.maxX() - inset - detailX), font, detail.color},
            detailX, midY);
        midY += windowHeight;
    }
}

}  // namespace vistrel
