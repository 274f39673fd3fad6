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

    DFKitMenuRow(DFKitGlyph glyph, std::string title, std::optional<std::string> shortcut,
                 std::function<void()> action);

    DFKitGlyph glyph() const { return glyph_; }
    const std::string& title() const { return title_.string; }
    std::optional<std::string> shortcut() const;

    Size sizeThatFits(double) const override { return size; }
    void draw(Canvas& canvas, Appearance appearance) const override;

  private:
    DFKitGlyph glyph_;
    DFKitText title_;
    std::optional<DFKitKeyText> shortcut_;
};

}  // namespace vistrel
