#pragma once

#include <optional>

#include "ui/kit/dfkit_control.h"
#include "ui/kit/dfkit_glyph.h"
#include "ui/kit/dfkit_key_text.h"
#include "ui/kit/dfkit_text.h"

namespace vistrel {

// A row that acts like a menu item: a glyph at the left, the title, and a shortcut's text
// right-aligned and muted; the chip colour while hovered.
class DFKitMenuRow : public DFKitControl {
  public:
    static constexpr Size size{284, 28};
    static constexpr double glyphSize = 15;
    static constexpr double glyphX = 10;
    static constexpr double titleX = 34;
    static constexpr double shortcutInset = 10;
    // A wrapping title's lines, and the room above the first and below the last.
    static constexpr double lineHeight = 17;
    static constexpr double wrappedInset = 6;

    DFKitMenuRow(DFKitGlyph glyph, std::string title, std::optional<std::string> shortcut,
                 std::function<void()> action);

    DFKitGlyph glyph() const { return glyph_; }
    const std::string& title() const { return title_.string; }
    std::optional<std::string> shortcut() const;
    // A title too long for the row is cut short with an ellipsis, unless the row wraps it onto
    // as many lines as it needs (a message the user must read whole).
    void setWraps(bool wraps) { wraps_ = wraps; }

    Size sizeThatFits(double) const override;
    void draw(Canvas& canvas, Appearance appearance) const override;

  private:
    double titleWidth(double rowWidth) const;
    // The title's lines at this row width: one unless the row wraps.
    std::vector<std::string> titleLines(double rowWidth) const;

    bool wraps_ = false;
    DFKitGlyph glyph_;
    DFKitText title_;
    std::optional<DFKitKeyText> shortcut_;
};

}  // namespace vistrel
