#pragma once

#include "platform/key_panel.h"

#ifdef __OBJC__
@class NSView;
@class VistrelKeyPanel;
@class VistrelKeyPanelView;
#endif

namespace vistrel {

#ifdef __OBJC__
// One key panel and its view, kept alive by ARC for as long as this object.
class MacKeyPanel : public KeyPanel {
  public:
    MacKeyPanel();
    ~MacKeyPanel() override;
    MacKeyPanel(const MacKeyPanel&) = delete;
    MacKeyPanel& operator=(const MacKeyPanel&) = delete;

    void setEvents(KeyPanelEvents events) override;
    void setFrame(Rect frame) override;
    Rect frame() const override;
    void setContent(std::shared_ptr<const DisplayList> content) override;
    void showKey() override;
    void orderOut() override;
    bool isVisible() const override;
    void invalidateShadow() override;
    void setAccessibilityNodes(std::vector<AccessibilityNode> nodes) override;
    void announceValueChanged(std::size_t node) override;

    // The view that draws the content: where a native menu pops up.
    NSView* contentView() const;

  private:
    VistrelKeyPanel* panel_;
    VistrelKeyPanelView* view_;
};
#endif

// Borderless NSPanels that can become key, each with a view that replays its display list,
// takes the mouse and lists the drawn views as accessibility elements. Main thread only.
class MacKeyPanelHost : public KeyPanelHost {
  public:
    std::unique_ptr<KeyPanel> makePanel() override;
};

}  // namespace vistrel
