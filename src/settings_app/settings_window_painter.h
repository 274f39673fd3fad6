#pragma once

#include <memory>

#include "platform/display_list.h"
#include "settings_app/settings_model.h"

namespace vistrel {

// Paints the whole Settings window from the model as the simulator shows it: the title bar
// with its window buttons, then either the sidebar with the selected page's grouped sections,
// or the welcome guide's current step with its Back and Continue buttons. The window grows
// to fit its page. Flipped space (y down), origin at the window's top-left corner.
class SettingsWindowPainter {
  public:
    static constexpr double width = 860;
    static constexpr double minimumHeight = 560;
    static constexpr double titleBarHeight = 52;
    static constexpr double sidebarWidth = 220;
    // Sections and their pictures are this wide, on every page and welcome step.
    static constexpr double columnWidth = 580;

    SettingsWindowPainter(const SettingsModel& model, Appearance appearance)
        : model_(model), appearance_(appearance) {}

    Size size() const;
    std::shared_ptr<const DisplayList> paint() const;

  private:
    double sectionsHeight(const Page& page) const;
    // Paints the page's sections from `top` down; answers where they end.
    double paintSections(Canvas& canvas, const Page& page, double x, double top) const;
    double welcomeHeaderHeight(const Page& step) const;
    void paintFrame(Canvas& canvas, Size size) const;
    void paintSidebar(Canvas& canvas, Size size) const;
    void paintSettingsPage(Canvas& canvas, Size size) const;
    void paintWelcomeStep(Canvas& canvas, Size size) const;
    void paintWelcomeBar(Canvas& canvas, Size size) const;

    const SettingsModel& model_;
    Appearance appearance_;
};

}  // namespace vistrel
