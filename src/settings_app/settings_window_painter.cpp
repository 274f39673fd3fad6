#include "settings_app/settings_window_painter.h"

#include <algorithm>
#include <array>

#include "settings_app/settings_ink.h"
#include "settings_app/settings_palette.h"
#include "settings_app/settings_row_painter.h"
#include "settings_app/settings_text.h"
#include "settings_app/settings_widgets.h"
#include "ui/kit/dfkit_glyph.h"

namespace vistrel {

namespace {

constexpr double windowRadius = 10;
constexpr double trafficLightSide = 12;
constexpr double trafficLightSpacing = 20;
constexpr Point firstTrafficLight{20, 20};
constexpr std::array trafficLights = {Color::fromRGB(0xFF5F57), Color::fromRGB(0xFEBC2E),
                                      Color::fromRGB(0x28C840)};

constexpr double pageTitleSize = 15;
constexpr double sectionTitleSize = 13;
constexpr double footnoteSize = 11;
constexpr double footnoteLine = 14;
constexpr double sectionTitleHeight = 24;
constexpr double sectionGap = 22;
constexpr double footnoteGap = 6;
constexpr double boxRadius = 8;
constexpr double contentTop = 24;
constexpr double contentBottom = 30;
constexpr std::size_t maxFootnoteLines = 3;

constexpr double sidebarRowHeight = 32;
constexpr double sidebarInset = 10;
constexpr double sidebarIconSide = 22;
constexpr double sidebarIconRadius = 5;
constexpr double sidebarTitleSize = 13;

constexpr double welcomeIconSide = 64;
constexpr double welcomeTitleSize = 22;
constexpr double welcomeSubtitleSize = 13;
constexpr double welcomeSubtitleLine = 18;
constexpr double welcomeBarHeight = 64;
constexpr double stepDotSide = 7;
constexpr double stepDotSpacing = 14;
constexpr double welcomeButtonWidth = 150;

// The simulator's stand-ins for the SF Symbols of the pages, with the tile colour macOS
// gives such panes.
struct PageIcon {
    DFKitGlyph glyph;
    Color tile;
};

PageIcon iconOf(PageId page) {
    switch (page) {
        case PageId::general:
            return {DFKitGlyph::gear, Color::fromRGB(0x8E8E93)};
        case PageId::buttons:
            return {DFKitGlyph::close, Color::fromRGB(0xFF453A)};
        case PageId::shortcuts:
            return {DFKitGlyph::cmd, Color::fromRGB(0x0A84FF)};
        case PageId::layouts:
            return {DFKitGlyph::wins, Color::fromRGB(0xAF52DE)};
        case PageId::about:
            return {DFKitGlyph::info, Color::fromRGB(0x8E8E93)};
        case PageId::welcome:
            return {DFKitGlyph::spark, Color::fromRGB(0x0A84FF)};
        case PageId::accessibility:
            return {DFKitGlyph::key, Color::fromRGB(0x0A84FF)};
        case PageId::login:
            return {DFKitGlyph::power, Color::fromRGB(0x0A84FF)};
        case PageId::ready:
            return {DFKitGlyph::check, Color::fromRGB(0x28C840)};
    }
    return {DFKitGlyph::gear, Color::systemGray()};
}

std::vector<std::string> footnoteLines(const std::string& footnote) {
    if (footnote.empty()) return {};
    return SettingsText::lines({footnote, Font::system(footnoteSize), {}},
                               SettingsWindowPainter::columnWidth, maxFootnoteLines);
}

std::vector<std::string> subtitleLines(const std::string& subtitle) {
    if (subtitle.empty()) return {};
    return SettingsText::lines({subtitle, Font::system(welcomeSubtitleSize), {}},
                               SettingsWindowPainter::columnWidth, 2);
}

double boxHeight(const SettingsRowPainter& rows, const Section& section) {
    double height = 0;
    for (const Control& control : section.controls) {
        height += rows.height(control, SettingsWindowPainter::columnWidth);
    }
    return height;
}

bool showsOnlyPictures(const Section& section) {
    return std::all_of(section.controls.begin(), section.controls.end(),
                       [](const Control& control) { return control.kind == ControlKind::picture; });
}

}  // namespace

double SettingsWindowPainter::sectionsHeight(const Page& page) const {
    const SettingsRowPainter rows(model_, appearance_);
    double height = 0;
    for (const Section& section : page.sections) {
        if (height > 0) height += sectionGap;
        if (!section.title.empty()) height += sectionTitleHeight;
        height += boxHeight(rows, section);
        const auto footnote = footnoteLines(section.footnote);
        if (!footnote.empty()) {
            height += footnoteGap + footnoteLine * static_cast<double>(footnote.size());
        }
    }
    return height;
}

double SettingsWindowPainter::welcomeHeaderHeight(const Page& step) const {
    return welcomeIconSide + 16 + welcomeTitleSize + 10 +
           welcomeSubtitleLine * static_cast<double>(subtitleLines(step.subtitle).size()) + 20;
}

Size SettingsWindowPainter::size() const {
    const Page& page = model_.currentPage();
    double height = titleBarHeight + contentTop + sectionsHeight(page) + contentBottom;
    if (model_.mode() == SettingsModel::Mode::welcome) {
        height += welcomeHeaderHeight(page) + welcomeBarHeight;
    }
    return {width, std::max(minimumHeight, height)};
}

std::shared_ptr<const DisplayList> SettingsWindowPainter::paint() const {
    RecordingCanvas canvas(true);
    const Size windowSize = size();
    canvas.save();
    canvas.clip(Path::roundedRect({0, 0, windowSize.width, windowSize.height}, windowRadius));
    paintFrame(canvas, windowSize);
    if (model_.mode() == SettingsModel::Mode::welcome) {
        paintWelcomeStep(canvas, windowSize);
    } else {
        paintSidebar(canvas, windowSize);
        paintSettingsPage(canvas, windowSize);
    }
    // The window buttons sit on top of the sidebar.
    for (std::size_t i = 0; i < trafficLights.size(); ++i) {
        const Point centre{firstTrafficLight.x + trafficLightSpacing * static_cast<double>(i),
                           firstTrafficLight.y};
        canvas.fill(Path::oval({centre.x - trafficLightSide / 2, centre.y - trafficLightSide / 2,
                                trafficLightSide, trafficLightSide}),
                    trafficLights[i]);
    }
    canvas.restore();
    canvas.stroke(Path::roundedRect({0.25, 0.25, windowSize.width - 0.5, windowSize.height - 0.5},
                                    windowRadius),
                  SettingsPalette::boxBorder.resolved(appearance_), {0.5});
    return canvas.finish();
}

void SettingsWindowPainter::paintFrame(Canvas& canvas, Size size) const {
    const SettingsInk ink{appearance_};
    canvas.fill(Path::rect({0, 0, size.width, size.height}), ink(SettingsPalette::window));
}

void SettingsWindowPainter::paintSidebar(Canvas& canvas, Size size) const {
    const SettingsInk ink{appearance_};
    canvas.fill(Path::rect({0, 0, sidebarWidth, size.height}), ink(SettingsPalette::sidebar));
    canvas.fill(Path::rect({sidebarWidth - 1, 0, 1, size.height}), ink(SettingsPalette::separator));
    double y = titleBarHeight;
    for (const Page& page : model_.pages()) {
        const Rect row{sidebarInset, y, sidebarWidth - 2 * sidebarInset, sidebarRowHeight - 2};
        const bool selected = page.id == model_.selectedPage();
        if (selected) canvas.fill(Path::roundedRect(row, 6), ink(SettingsPalette::accent));
        const PageIcon icon = iconOf(page.id);
        const Rect tile{row.x + 6, row.midY() - sidebarIconSide / 2, sidebarIconSide,
                        sidebarIconSide};
        canvas.fill(Path::roundedRect(tile, sidebarIconRadius), icon.tile);
        drawGlyph(canvas, icon.glyph, tile.mid(), sidebarIconSide - 6, Color::white());
        const TextRun title{page.title, Font::system(sidebarTitleSize),
                            ink(selected ? SettingsPalette::onAccent : SettingsPalette::label)};
        SettingsText::drawLeft(canvas, title, tile.maxX() + 8, row.midY());
        y += sidebarRowHeight;
    }
}

void SettingsWindowPainter::paintSettingsPage(Canvas& canvas, Size size) const {
    const SettingsInk ink{appearance_};
    const Page& page = model_.currentPage();
    const TextRun title{page.title, Font::system(pageTitleSize, FontWeight::bold),
                        ink(SettingsPalette::label)};
    SettingsText::drawLeft(canvas, title, sidebarWidth + 20, titleBarHeight / 2);
    canvas.fill(Path::rect({sidebarWidth, titleBarHeight - 1, size.width - sidebarWidth, 1}),
                ink(SettingsPalette::separator));
    const double x = sidebarWidth + (size.width - sidebarWidth - columnWidth) / 2;
    paintSections(canvas, page, x, titleBarHeight + contentTop);
}

double SettingsWindowPainter::paintSections(Canvas& canvas, const Page& page, double x,
                                            double top) const {
    const SettingsInk ink{appearance_};
    const SettingsRowPainter rows(model_, appearance_);
    double y = top;
    for (const Section& section : page.sections) {
        if (y > top) y += sectionGap;
        if (!section.title.empty()) {
            const TextRun title{section.title, Font::system(sectionTitleSize, FontWeight::semibold),
                                ink(SettingsPalette::label)};
            SettingsText::drawLeft(canvas, title, x + 2, y + sectionTitleHeight / 2 - 3);
            y += sectionTitleHeight;
        }
        const Rect box{x, y, columnWidth, boxHeight(rows, section)};
        // A picture alone stands on the window itself, without a box around it.
        if (!showsOnlyPictures(section)) {
            canvas.fill(Path::roundedRect(box, boxRadius), ink(SettingsPalette::box));
            canvas.stroke(Path::roundedRect(box.insetBy(0.25, 0.25), boxRadius),
                          ink(SettingsPalette::boxBorder), {0.5});
        }
        double rowY = box.y;
        for (std::size_t i = 0; i < section.controls.size(); ++i) {
            const Control& control = section.controls[i];
            const Rect row{box.x, rowY, box.width, rows.height(control, columnWidth)};
            if (i > 0) {
                canvas.fill(Path::rect({row.x + SettingsRowPainter::insetX, row.y,
                                        row.width - 2 * SettingsRowPainter::insetX, 1}),
                            ink(SettingsPalette::separator));
            }
            rows.paint(canvas, control, row);
            rowY = row.maxY();
        }
        y = box.maxY();
        const auto footnote = footnoteLines(section.footnote);
        if (!footnote.empty()) y += footnoteGap;
        for (const std::string& line : footnote) {
            const TextRun run{line, Font::system(footnoteSize),
                              ink(SettingsPalette::secondaryLabel)};
            SettingsText::drawLeft(canvas, run, x + 2, y + footnoteLine / 2);
            y += footnoteLine;
        }
    }
    return y;
}

void SettingsWindowPainter::paintWelcomeStep(Canvas& canvas, Size size) const {
    const SettingsInk ink{appearance_};
    const Page& step = model_.currentPage();
    const double centreX = size.width / 2;
    double y = titleBarHeight;
    const PageIcon icon = iconOf(step.id);
    const Rect circle{centreX - welcomeIconSide / 2, y, welcomeIconSide, welcomeIconSide};
    canvas.fill(Path::oval(circle), icon.tile);
    drawGlyph(canvas, icon.glyph, circle.mid(), welcomeIconSide / 2, Color::white());
    y = circle.maxY() + 16;
    const TextRun title{step.title, Font::system(welcomeTitleSize, FontWeight::bold),
                        ink(SettingsPalette::label)};
    SettingsText::drawCentred(canvas, title, {centreX, y + welcomeTitleSize / 2});
    y += welcomeTitleSize + 10;
    for (const std::string& line : subtitleLines(step.subtitle)) {
        const TextRun run{line, Font::system(welcomeSubtitleSize),
                          ink(SettingsPalette::secondaryLabel)};
        SettingsText::drawCentred(canvas, run, {centreX, y + welcomeSubtitleLine / 2});
        y += welcomeSubtitleLine;
    }
    paintSections(canvas, step, centreX - columnWidth / 2, y + 20);
    paintWelcomeBar(canvas, size);
}

// Dots for the steps at the left; Back (after the first step) and Continue at the right.
void SettingsWindowPainter::paintWelcomeBar(Canvas& canvas, Size size) const {
    const SettingsInk ink{appearance_};
    const double top = size.height - welcomeBarHeight;
    canvas.fill(Path::rect({0, top, size.width, 1}), ink(SettingsPalette::separator));
    const double midY = top + welcomeBarHeight / 2;
    for (std::size_t i = 0; i < model_.welcomeSteps().size(); ++i) {
        const double x = 30 + stepDotSpacing * static_cast<double>(i);
        canvas.fill(Path::oval({x, midY - stepDotSide / 2, stepDotSide, stepDotSide}),
                    ink(i == model_.welcomeStep() ? SettingsPalette::accent
                                                  : SettingsPalette::tertiaryLabel));
    }
    const double buttonHeight = SettingsWidgets::controlHeight + 6;
    const Rect next{size.width - 30 - welcomeButtonWidth, midY - buttonHeight / 2,
                    welcomeButtonWidth, buttonHeight};
    SettingsWidgets::drawPushButton(canvas, next, model_.continueTitle(), true, ink);
    if (model_.canGoBack()) {
        SettingsWidgets::drawPushButton(canvas, next.offsetBy(-welcomeButtonWidth - 12, 0), "Back",
                                        false, ink);
    }
}

}  // namespace vistrel
