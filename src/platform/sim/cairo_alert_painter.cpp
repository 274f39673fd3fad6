#include "platform/sim/cairo_alert_painter.h"

#include <array>
#include <sstream>

#include "platform/path.h"
#include "platform/sim/cairo_desktop_painter.h"

namespace vistrel {

namespace {

// The panel, in points, after the alerts of macOS 11 and later.
constexpr double plainWidth = 260;
constexpr double fieldsWidth = 320;
constexpr double sidePadding = 20;
constexpr double topPadding = 20;
constexpr double bottomPadding = 16;
constexpr double cornerRadius = 12;
constexpr double iconSize = 64;
constexpr double iconRadius = 14;
constexpr double gapAfterIcon = 12;
constexpr double gapAfterTitle = 6;
constexpr double gapBeforeAccessory = 14;
constexpr double gapBeforeButtons = 16;
// Alerts sit a third of the way down the screen, as AppKit centres them.
constexpr double screenFraction = 1.0 / 3;

constexpr double titleSize = 13;
constexpr double titleLineHeight = 16;
constexpr double textSize = 11;
constexpr double textLineHeight = 14;
constexpr double baselineInLine = 0.78;

constexpr double noteHeight = 110;
constexpr double emailHeight = 24;
constexpr double fieldSpacing = 8;
constexpr double fieldInset = 5;
constexpr double fieldTextSize = 13;
constexpr double fieldLineHeight = 16;
constexpr double fieldRadius = 3;
constexpr double focusRingWidth = 3.5;

constexpr double buttonHeight = 28;
constexpr double buttonSpacing = 8;
constexpr double buttonRadius = 7;
constexpr double buttonTextSize = 13;
constexpr double buttonTextPadding = 16;

constexpr double iconDot = 11;
constexpr double iconDotSpacing = 16;

const Color panelColor = Color::fromRGB(0xECECEC);
const Color panelEdge = Color::black().withAlpha(0.18);
const Color primaryText = Color::black().withAlpha(0.85);
const Color placeholderText = Color::black().withAlpha(0.25);
const Color fieldColor = Color::white();
const Color fieldEdge = Color::black().withAlpha(0.2);
const Color accent = Color::fromRGB(0x007AFF);
const Color focusRing = accent.withAlpha(0.5);
const Color plainButton = Color::white();
const Color buttonEdge = Color::black().withAlpha(0.12);
const Color iconTop = Color::fromRGB(0x2E3A8C);
const std::array<Color, 3> iconDots = {Color::fromRGB(0xFF5F57), Color::fromRGB(0xFEBC2E),
                                       Color::fromRGB(0x28C840)};

const StrokeStyle hairline{1, LineCap::butt, LineJoin::miter};

}  // namespace

CairoAlertPainter::CairoAlertPainter(cairo_t* cr, CairoFonts& fonts, Rect screen)
    : cr_(cr), fonts_(fonts), canvas_(cr, fonts, false), screen_(screen) {}

void CairoAlertPainter::paint(const AlertContent& alert,
                              const std::optional<SimReportFields>& fields) {
    const double width = fields ? fieldsWidth + 2 * sidePadding : plainWidth;
    const double inner = width - 2 * sidePadding;
    const Block title =
        wrap(alert.title, {"", Font::system(titleSize, FontWeight::bold), primaryText, 0},
             titleLineHeight, inner);
    const Block text =
        wrap(alert.text, {"", Font::system(textSize), primaryText, 0}, textLineHeight, inner);
    const bool sideBySide = buttonsFitSideBySide(alert.buttons, inner);
    const double rows = sideBySide ? 1 : static_cast<double>(alert.buttons.size());
    const double buttonsHeight = rows * buttonHeight + (rows - 1) * buttonSpacing;
    const double fieldsHeight =
        fields ? gapBeforeAccessory + noteHeight + fieldSpacing + emailHeight : 0;
    const double height = topPadding + iconSize + gapAfterIcon + title.height() +
                          (text.lines.empty() ? 0 : gapAfterTitle + text.height()) + fieldsHeight +
                          gapBeforeButtons + buttonsHeight + bottomPadding;
    const Rect panel{screen_.midX() - width / 2,
                     screen_.y + (screen_.height - height) * screenFraction, width, height};

    CairoDesktopPainter(cr_, fonts_, screen_).windowShadow(panel, cornerRadius);
    canvas_.fill(Path::roundedRect(panel, cornerRadius), panelColor);
    canvas_.stroke(Path::roundedRect(panel.insetBy(0.5, 0.5), cornerRadius), panelEdge, hairline);

    double y = panel.y + topPadding;
    paintIcon({panel.midX() - iconSize / 2, y, iconSize, iconSize});
    y = paintBlock(title, panel.midX(), y + iconSize + gapAfterIcon);
    if (!text.lines.empty()) y = paintBlock(text, panel.midX(), y + gapAfterTitle);
    if (fields) y = paintFields(*fields, {panel.x + sidePadding, y + gapBeforeAccessory, inner, 0});
    paintButtons(alert.buttons, {panel.x + sidePadding, y + gapBeforeButtons, inner, buttonsHeight},
                 sideBySide);
}

CairoAlertPainter::Block CairoAlertPainter::wrap(const std::string& text, const TextRun& style,
                                                 double lineHeight, double width) {
    Block block{{}, style, lineHeight};
    std::istringstream paragraphs(text);
    for (std::string paragraph; std::getline(paragraphs, paragraph);) {
        std::istringstream words(paragraph);
        std::string line;
        for (std::string word; words >> word;) {
            const std::string longer = line.empty() ? word : line + " " + word;
            TextRun run = style;
            run.text = longer;
            if (!line.empty() && canvas_.textWidth(run) > width) {
                block.lines.push_back(line);
                line = word;
            } else {
                line = longer;
            }
        }
        block.lines.push_back(line);
    }
    return block;
}

double CairoAlertPainter::paintBlock(const Block& block, double midX, double top) {
    double y = top;
    for (const std::string& line : block.lines) {
        TextRun run = block.style;
        run.text = line;
        canvas_.drawText(
            run, {midX - canvas_.textWidth(run) / 2, y + block.lineHeight * baselineInLine});
        y += block.lineHeight;
    }
    return y;
}

void CairoAlertPainter::paintIcon(Rect frame) {
    canvas_.fill(Path::roundedRect(frame, iconRadius), iconTop);
    const double left = frame.midX() - iconDotSpacing - iconDot / 2;
    for (std::size_t i = 0; i < iconDots.size(); ++i) {
        const double x = left + static_cast<double>(i) * iconDotSpacing;
        canvas_.fill(Path::oval({x, frame.midY() - iconDot / 2, iconDot, iconDot}), iconDots[i]);
    }
}

double CairoAlertPainter::paintFields(const SimReportFields& fields, Rect area) {
    const Rect note{area.x, area.y, area.width, noteHeight};
    const Rect email{area.x, note.maxY() + fieldSpacing, area.width, emailHeight};
    // The note has the keyboard focus when the dialog opens.
    canvas_.stroke(Path::roundedRect(note.insetBy(-focusRingWidth / 2, -focusRingWidth / 2),
                                     fieldRadius + focusRingWidth / 2),
                   focusRing, {focusRingWidth, LineCap::butt, LineJoin::round});
    for (const Rect& field : {note, email}) {
        canvas_.fill(Path::roundedRect(field, fieldRadius), fieldColor);
        canvas_.stroke(Path::roundedRect(field.insetBy(0.5, 0.5), fieldRadius), fieldEdge,
                       hairline);
    }
    const TextRun fieldText{"", Font::system(fieldTextSize), primaryText, 0};
    const Block noteLines =
        wrap(fields.note, fieldText, fieldLineHeight, note.width - 2 * fieldInset);
    canvas_.save();
    canvas_.clip(Path::rect(note.insetBy(fieldInset, fieldInset)));
    double y = note.y + fieldInset;
    for (const std::string& line : noteLines.lines) {
        canvas_.drawText({line, fieldText.font, primaryText, 0},
                         {note.x + fieldInset, y + fieldLineHeight * baselineInLine});
        y += fieldLineHeight;
    }
    canvas_.restore();
    const bool empty = fields.email.empty();
    canvas_.drawText({empty ? fields.emailPlaceholder : fields.email, fieldText.font,
                      empty ? placeholderText : primaryText, 0},
                     {email.x + fieldInset, email.midY() + fieldTextSize * 0.35});
    return email.maxY();
}

void CairoAlertPainter::paintButtons(const std::vector<std::string>& buttons, Rect area,
                                     bool sideBySide) {
    const double count = static_cast<double>(buttons.size());
    const double width =
        sideBySide ? (area.width - (count - 1) * buttonSpacing) / count : area.width;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        // Side by side the default button is on the right, stacked it is on top.
        const double index = static_cast<double>(sideBySide ? buttons.size() - 1 - i : i);
        const Rect frame =
            sideBySide ? Rect{area.x + index * (width + buttonSpacing), area.y, width, buttonHeight}
                       : Rect{area.x, area.y + index * (buttonHeight + buttonSpacing), width,
                              buttonHeight};
        const bool isDefault = i == 0;
        canvas_.fill(Path::roundedRect(frame, buttonRadius), isDefault ? accent : plainButton);
        if (!isDefault)
            canvas_.stroke(Path::roundedRect(frame.insetBy(0.5, 0.5), buttonRadius), buttonEdge,
                           hairline);
        const TextRun label{buttons[i], Font::system(buttonTextSize),
                            isDefault ? Color::white() : primaryText, 0};
        canvas_.drawText(label, {frame.midX() - canvas_.textWidth(label) / 2,
                                 frame.midY() + buttonTextSize * 0.35});
    }
}

bool CairoAlertPainter::buttonsFitSideBySide(const std::vector<std::string>& buttons,
                                             double width) {
    if (buttons.size() != 2) return false;
    const double half = (width - buttonSpacing) / 2;
    for (const std::string& button : buttons) {
        if (canvas_.textWidth({button, Font::system(buttonTextSize), primaryText, 0}) +
                2 * buttonTextPadding >
            half)
            return false;
    }
    return true;
}

}  // namespace vistrel
