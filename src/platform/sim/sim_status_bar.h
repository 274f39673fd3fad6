#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/display_list.h"
#include "platform/status_bar.h"

namespace vistrel {

class SimDesktop;
class SimStatusBar;

// One status item on the simulated menu bar, keeping what the agent set on it.
class SimStatusItem : public StatusItem {
  public:
    explicit SimStatusItem(SimStatusBar& bar) : bar_(bar) {}
    ~SimStatusItem() override;
    SimStatusItem(const SimStatusItem&) = delete;
    SimStatusItem& operator=(const SimStatusItem&) = delete;

    void setTemplateImage(std::shared_ptr<const DisplayList> image, Size size) override {
        image_ = std::move(image);
        imageSize_ = size;
    }
    void setAccessibilityLabel(const std::string& label) override { label_ = label; }
    void setAction(std::function<void()> action) override { action_ = std::move(action); }
    void setVisible(bool visible) override { visible_ = visible; }
    bool isVisible() const override { return visible_; }
    void setHighlighted(bool highlighted) override { highlighted_ = highlighted; }
    std::optional<Rect> buttonFrame() const override;

    // A left click on the button: its action, as AppKit sends it on mouse-down.
    void click();
    const std::shared_ptr<const DisplayList>& image() const { return image_; }
    Size imageSize() const { return imageSize_; }
    const std::string& accessibilityLabel() const { return label_; }
    bool highlighted() const { return highlighted_; }

  private:
    SimStatusBar& bar_;
    std::shared_ptr<const DisplayList> image_;
    Size imageSize_;
    std::string label_;
    std::function<void()> action_;
    bool visible_ = true;
    bool highlighted_ = false;
};

// The simulated system status bar along the primary screen's menu bar: the agent's items
// sit at its right end, the newest leftmost, each as wide as the bar is high.
class SimStatusBar : public StatusBar {
  public:
    explicit SimStatusBar(SimDesktop& desktop) : desktop_(desktop) {}

    std::unique_ptr<StatusItem> makeSquareItem() override;

    // The items that still exist, the first made first.
    const std::vector<SimStatusItem*>& items() const { return items_; }
    // The item's button on the bar (AppKit coordinates): the first visible item rightmost;
    // none while the item is hidden.
    std::optional<Rect> frameOf(const SimStatusItem& item) const;
    void forget(const SimStatusItem& item);
    // Room kept free at the bar's right end, for the system's own items; 0 puts the agent's
    // first item at the screen's very edge.
    double rightInset = 8;
    // When set, the bar refuses new items (as when it has no room left).
    bool refuseItems = false;

  private:
    SimDesktop& desktop_;
    std::vector<SimStatusItem*> items_;
};

}  // namespace vistrel
