#pragma once

#include <cairo.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/modal_alert.h"
#include "platform/report_dialog.h"
#include "platform/sim/cairo_canvas.h"
#include "platform/sim/cairo_fonts.h"

namespace vistrel {

// What the report dialog's fields hold while the picture is taken.
struct SimReportFields {
    std::string note;
    std::string email;
    std::string emailPlaceholder;
};

// Paints an alert as macOS draws one from Big Sur on: a light, rounded panel in the upper
// third of the screen with the application's icon on top, the bold title and the smaller
// text centred under it, an accessory (the report dialog's note and email fields) and the
// buttons, the default one in the accent blue. Two buttons share a row when they fit,
// otherwise they are stacked. A picture for people to look at, in points of the screen.
class CairoAlertPainter {
  public:
    CairoAlertPainter(cairo_t* cr, CairoFonts& fonts, Rect screen);

    void paint(const AlertContent& alert, const std::optional<SimReportFields>& fields);

  private:
    struct Block {
        std::vector<std::string> lines;
        TextRun style;
        double lineHeight = 0;
        double height() const { return static_cast<double>(lines.size()) * lineHeight; }
    };

    Block wrap(const std::string& text, const TextRun& style, double lineHeight, double width);
    double paintBlock(const Block& block, double midX, double top);
    void paintIcon(Rect frame);
    double paintFields(const SimReportFields& fields, Rect area);
    void paintButtons(const std::vector<std::string>& buttons, Rect area, bool sideBySide);
    bool buttonsFitSideBySide(const std::vector<std::string>& buttons, double width);

    cairo_t* cr_;
    CairoFonts& fonts_;
    CairoCanvas canvas_;
    Rect screen_;
};

}  // namespace vistrel
