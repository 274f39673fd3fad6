#pragma once

#include "platform/canvas.h"
#include "settings_app/settings_model.h"

namespace vistrel {

// Paints the saved layouts as a table with its buttons (remove, move up and down, import,
// export) and the last edit's message under it. Flipped space (y down).
class LayoutListPainter {
  public:
    LayoutListPainter(const SettingsModel& model, Appearance appearance)
        : model_(model), appearance_(appearance) {}

    double height() const;
    void paint(Canvas& canvas, Rect row) const;

  private:
    double tableHeight() const;
    void paintTable(Canvas& canvas, Rect table) const;
    void paintButtons(Canvas& canvas, Rect bar) const;

    const SettingsModel& model_;
    Appearance appearance_;
};

}  // namespace vistrel
