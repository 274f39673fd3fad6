#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "settings_app/settings_ink.h"
#include "settings_app/settings_model.h"

namespace vistrel {

// Paints one control as a row of a grouped box: its label (and help) at the left, the
// control itself at the right; pictures and the saved-layouts list take the whole row.
// Values come from the model at the moment of painting. Flipped space (y down).
class SettingsRowPainter {
  public:
    static constexpr double minimumHeight = 40;
    static constexpr double insetX = 12;

    SettingsRowPainter(const SettingsModel& model, Appearance appearance)
        : model_(model), appearance_(appearance) {}

    double height(const Control& control, double width) const;
    void paint(Canvas& canvas, const Control& control, Rect row) const;

  private:
    struct Accessory {
        double width = 0;
        std::vector<std::string> lines;  // status, text and link rows: the value's lines
    };

    Accessory accessory(const Control& control, double rowWidth) const;
    std::vector<std::string> helpLines(const Control& control, double width) const;
    double labelWidth(const Control& control, double rowWidth) const;
    void paintAccessory(Canvas& canvas, const Control& control, Rect row,
                        const Accessory& accessory, const SettingsInk& ink) const;
    void paintValueLines(Canvas& canvas, const Control& control, Rect row,
                         const Accessory& accessory, const SettingsInk& ink) const;
    void paintPicture(Canvas& canvas, const Control& control, Rect row) const;

    const SettingsModel& model_;
    Appearance appearance_;
};

}  // namespace vistrel
