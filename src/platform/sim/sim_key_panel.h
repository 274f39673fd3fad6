#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/key_panel.h"

namespace vistrel {

class SimKeyPanelHost;

// One key panel on the simulated screen: it keeps what the agent set and lets a test act
// as the user would on it (clicks, Escape, the pointer, another app taking the keyboard).
class SimKeyPanel : public KeyPanel {
  public:
    explicit SimKeyPanel(SimKeyPanelHost& host) : host_(host) {}
    ~SimKeyPanel() override;
    SimKeyPanel(const SimKeyPanel&) = delete;
    SimKeyPanel& operator=(const SimKeyPanel&) = delete;

    void setEvents(KeyPanelEvents events) override { events_ = std::move(events); }
    void setFrame(Rect frame) override { frame_ = frame; }
    Rect frame() const override { return frame_; }
    void setContent(std::shared_ptr<const DisplayList> content) override;
    void showKey() override;
    void orderOut() override;
    bool isVisible() const override { return visible_; }
    void invalidateShadow() override { ++shadowUpdates_; }
    void setAccessibilityNodes(std::vector<AccessibilityNode> nodes) override {
        nodes_ = std::move(nodes);
    }
    void announceValueChanged(std::size_t node) override { announced_.push_back(node); }

    // The user's actions, points in the content's flipped space.
    void click(Point point);
    void mouseDown(Point point);
    void mouseUp(Point point);
    void moveMouse(std::optional<Point> point);
    // The wheel or the trackpad over the content, as NSEvent reports it.
    void scroll(Point point, double deltaY, bool precise);
    void pressEscape();
    // A key pressed while the panel is key; answers whether the panel used it.
    bool pressKey(std::int64_t keyCode, std::uint64_t modifierFlags = 0);
    // Another window takes the keyboard.
    void resignKey();

    bool isKey() const { return key_; }
    const std::shared_ptr<const DisplayList>& content() const { return content_; }
    int contentUpdates() const { return contentUpdates_; }
    int shadowUpdates() const { return shadowUpdates_; }
    const std::vector<AccessibilityNode>& accessibilityNodes() const { return nodes_; }
    const std::vector<std::size_t>& announcedValueChanges() const { return announced_; }

  private:
    SimKeyPanelHost& host_;
    KeyPanelEvents events_;
    Rect frame_;
    std::shared_ptr<const DisplayList> content_;
    bool visible_ = false;
    bool key_ = false;
    int contentUpdates_ = 0;
    int shadowUpdates_ = 0;
    std::vector<AccessibilityNode> nodes_;
    std::vector<std::size_t> announced_;
};

// Makes key panels and remembers them for the screen renderer and for tests.
class SimKeyPanelHost : public KeyPanelHost {
  public:
    std::unique_ptr<KeyPanel> makePanel() override;

    const std::vector<SimKeyPanel*>& panels() const { return panels_; }
    // The panel that is key, if any.
    SimKeyPanel* keyPanel() const;
    void forget(const SimKeyPanel& panel);
    // When set, no panel can be made.
    bool failPanels = false;

  private:
    std::vector<SimKeyPanel*> panels_;
};

}  // namespace vistrel
