#pragma once

#include <string>

#include "ui/kit/dfkit_text.h"
#include "ui/kit/dfkit_view.h"

namespace vistrel {

// A section's name in upper case, in the mono font, spaced out and muted.
class DFKitSectionLabel : public DFKitView {
  public:
    static constexpr double height = 26;
    static constexpr double fontSize = 10;
    static constexpr double kern = 1.4;
    static constexpr double textInset = 10;

    explicit DFKitSectionLabel(std::string text);
    const std::string& text() const { return text_; }
    // The text as drawn.
    const DFKitText& label() const { return label_; }

    Size sizeThatFits(double width) const override { return {width, height}; }
    void draw(Canvas& canvas, Appearance appearance) const override;
    std::optional<AccessibilityNode> accessibilityNode() override;

  private:
    std::string text_;
    DFKitText label_;
};

}  // namespace vistrel
