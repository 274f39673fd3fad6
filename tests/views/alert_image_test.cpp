#include <gtest/gtest.h>

#include <cairo.h>

#include "diagnostics/report_problem.h"
#include "platform/sim/cairo_alert_painter.h"
#include "reference_image.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

// Each alert is drawn on a plain grey stand-in for the desktop, at 2x.
constexpr Rect backdropScreen{0, 0, 440, 560};
constexpr double pictureScale = 2;
const Color backdrop = *Color::fromHex("#5B6478");

using Text = ReportProblem::Text;

CairoSurface alertPicture(const AlertContent& alert, const std::optional<SimReportFields>& fields) {
    CairoSurface surface(static_cast<int>(backdropScreen.width * pictureScale),
                         static_cast<int>(backdropScreen.height * pictureScale));
    cairo_t* cr = cairo_create(surface.get());
    cairo_scale(cr, pictureScale, pictureScale);
    cairo_set_source_rgb(cr, backdrop.red, backdrop.green, backdrop.blue);
    cairo_paint(cr);
    CairoFonts fonts;
    CairoAlertPainter(cr, fonts, backdropScreen).paint(alert, fields);
    cairo_destroy(cr);
    return surface;
}

std::string str(std::string_view text) {
    return std::string(text);
}

using AlertReferenceTest = testing::SimTest;

TEST_F(AlertReferenceTest, ReportDialogWithANoteAndAnEmailMatchesTheReference) {
    const AlertContent dialog{str(Text::title),
                              str(Text::message),
                              {str(Text::send), str(Text::saveToFile), str(Text::cancel)}};
    const SimReportFields fields{"The shelf stayed on screen after Mission Control closed.",
                                 "ada@example.com", str(Text::emailPlaceholder)};
    EXPECT_TRUE(matchesReference(alertPicture(dialog, fields), "alert_report_dialog"));
}

TEST_F(AlertReferenceTest, EmptyEmailFieldShowsThePlaceholder) {
    const AlertContent dialog{str(Text::title),
                              str(Text::message),
                              {str(Text::send), str(Text::saveToFile), str(Text::cancel)}};
    const SimReportFields fields{"", "", str(Text::emailPlaceholder)};
    EXPECT_TRUE(matchesReference(alertPicture(dialog, fields), "alert_report_dialog_empty"));
}

TEST_F(AlertReferenceTest, NotSentAlertWithTwoButtonsMatchesTheReference) {
    const AlertContent alert{str(Text::notSent),
                             ReportProblem::saveInstead("support@quillmarsh.com"),
                             {str(Text::saveToFile), str(Text::cancel)}};
    EXPECT_TRUE(matchesReference(alertPicture(alert, std::nullopt), "alert_not_sent"));
}

TEST_F(AlertReferenceTest, ThankYouAlertMatchesTheReference) {
    const AlertContent alert{ReportProblem::thanks("4711", "ada@example.com"), "", {str(Text::ok)}};
    EXPECT_TRUE(matchesReference(alertPicture(alert, std::nullopt), "alert_thanks"));
}

}  // namespace
}  // namespace vistrel
