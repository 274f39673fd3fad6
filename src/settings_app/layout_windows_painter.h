#pragma once

#include "platform/canvas.h"
#include "settings_app/settings_model.h"

namespace vistrel {

// Paints the chosen saved layout's windows in a box under the layouts table: a title line
// with the Copy URL button, then one line per window with its application and its document's
// file name or its title. Nothing when no layout is chosen. Flipped space (y down).
class LayoutWindowsPainter {
  public:
    LayoutWindowsPainter(const SettingsModel& model, Appearance appearance)
        : model_(model), appearance_(appearance) {}

    // 0 when no layout is chosen.
    double height() const;
    void paint(Canvas& canvas, Rect box) const;

    static constexpr std::string_view copyTitle = "Copy URL";
    static constexpr std::string_view noWindows = "This layout has no windows.";
    // The title over the windows of the layout with that name.
    static std::string heading(const std::string& name) { return "Windows of “" + name + "”"; }

  private:
    void paintWindows(Canvas& canvas, Rect box, const std::vector<LayoutWindowRow>& windows) const;

    const SettingsModel& model_;
    Appearance appearance_;
};

}  // namespace vistrel
