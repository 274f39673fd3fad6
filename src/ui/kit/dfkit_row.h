#pragma once

#include <optional>
#include <string>

#include "ui/kit/dfkit_glyph.h"
#include "ui/kit/dfkit_mark.h"
#include "ui/kit/dfkit_text.h"
#include "ui/kit/dfkit_view.h"

namespace vistrel {

// A status row: a round disc with a glyph (the accent when on, neutral when off), a title
// and a detail wrapped under it. The disc's, title's and detail's rectangles are laid out
// once for the row's width.
class DFKitRow : public DFKitView {
  public:
    static constexpr double discSize = 28;
    static constexpr double discX = 8;
    static constexpr double glyphSize = 15;
    static constexpr double minHeight = 32;
    static constexpr double textX = 46;

    DFKitRow(DFKitGlyph glyph, bool on, std::string title, std::string detail,
             std::optional<DFKitApp> app = std::nullopt);

    DFKitGlyph glyph() const { return glyph_; }
    bool on() const { return on_; }
    const std::string& title() const { return title_.string; }
    const std::string& detail() const { return detail_.string; }
    const std::optional<DFKitApp>& app() const { return app_; }
    Rect discRect() const { return discRect_; }
    Rect titleRect() const { return titleRect_; }
    Rect detailRect() const { return detailRect_; }

    Size sizeThatFits(double width) const override;
    void draw(Canvas& canvas, Appearance appearance) const override;
    std::optional<AccessibilityNode> accessibilityNode() override;

  protected:
    void layout() override;

  private:
    struct Layout {
        Rect disc, title, detail;
        std::vector<std::string> titleLines;
        std::vector<std::string> lines;
    };
    Layout layoutFor(double width) const;
    static void drawLines(Canvas& canvas, Appearance appearance, const DFKitText& style,
                          const std::vector<std::string>& lines, Rect rect, double lineHeight);

    DFKitGlyph glyph_;
    bool on_;
    DFKitText title_;
    DFKitText detail_;
    std::optional<DFKitApp> app_;
    Rect discRect_, titleRect_, detailRect_;
    std::vector<std::string> titleLines_;
    std::vector<std::string> detailLines_;
};

}  // namespace vistrel
