#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ui/kit/dfkit_mark.h"
#include "ui/kit/dfkit_text.h"
#include "ui/kit/dfkit_view.h"

namespace vistrel {

// The top of a panel: the app's mark and name, an optional muted label under the name, and
// an optional accessory view at the right edge.
class DFKitPanelHeader : public DFKitView {
  public:
    static constexpr double height = 44;
    // The mark's image; its shapes take the middle half of it.
    static constexpr double markSize = 36;
    static constexpr double markCentreX = 17;
    static constexpr double nameX = 38;
    static constexpr double nameFontSize = 15;
    static constexpr double accessoryInset = 4;

    DFKitPanelHeader(DFKitApp app, std::optional<std::string> label,
                     std::unique_ptr<DFKitView> accessory);

    const DFKitApp& app() const { return app_; }
    DFKitView* accessory() const { return accessory_.get(); }

    Size sizeThatFits(double width) const override { return {width, height}; }
    void draw(Canvas& canvas, Appearance appearance) const override;
    std::vector<DFKitView*> subviews() const override;
    std::optional<AccessibilityNode> accessibilityNode() override;

  protected:
    void layout() override;

  private:
    DFKitApp app_;
    DFKitText name_;
    std::optional<DFKitText> label_;
    std::unique_ptr<DFKitView> accessory_;
};

}  // namespace vistrel
