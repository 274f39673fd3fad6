#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "platform/key_panel.h"
#include "platform/status_bar.h"
#include "ui/kit/dfkit_panel_view.h"

namespace vistrel {

// The panel window under a status item and what it shows: the rows `build` supplies, made
// anew at each opening, drawn in the system's appearance and redrawn when it changes. It
// closes on Escape, when it stops being key, on a mouse-down in another application, and
// when its owner closes it. Main thread only.
class DFKitStatusPanel : public DFKitHost {
  public:
    // The panel hangs this far below the menu bar and keeps this far from the screen's sides.
    static constexpr double screenGap = 6;
    // A wheel's line, for a mouse that scrolls by lines rather than points.
    static constexpr double scrollLine = 12;

    using Build = std::function<DFKitViews()>;

    DFKitStatusPanel();
    ~DFKitStatusPanel() override;
    DFKitStatusPanel(const DFKitStatusPanel&) = delete;
    DFKitStatusPanel& operator=(const DFKitStatusPanel&) = delete;

    Build build;
    std::function<void()> onOpen;
    std::function<void()> onClose;
    std::function<void()> onEscape;

    // Builds the rows, sizes and places the panel under the item's button, shows it key and
    // highlights the button. Does nothing when the window cannot be made.
    void open(StatusItem& item);
    void close();
    bool isVisible() const;
    // Virtual time of the last close; none before the first.
    std::optional<double> closedAt() const { return closedAt_; }
    // Places the panel under the button (AppKit coordinates): centred, kept 6 points from
    // the sides of the button's screen (else the main screen), 6 points under the menu bar.
    void position();

    // The keyboard, as in a menu: the up and down arrows move the highlight (the one the
    // pointer gives) through the views that take a click, scrolling the saved layouts to keep
    // it in sight, and Return, Enter or Space press the highlighted view. Answers whether the
    // key was used; keys with Shift, Control, Option or Command are left alone.
    bool keyDown(std::int64_t keyCode, std::uint64_t modifierFlags);
    // The highlighted view, by the pointer or the arrow keys; none when nothing is.
    DFKitView* highlighted() const { return hovered_; }

    DFKitPanelView& content() { return content_; }
    KeyPanel* window() const { return window_.get(); }
    Appearance appearance() const { return appearance_; }

    // DFKitHost.
    void setNeedsDisplay() override;
    void valueChanged(const DFKitView& view) override;

  private:
    void makeWindow();
    void redraw();
    void mouseDown(Point point);
    void mouseUp(Point point);
    void mouseMoved(std::optional<Point> point);
    void scrolled(Point point, double deltaY, bool precise);
    void highlight(DFKitView* view);
    void moveHighlight(int step);
    void appearanceChanged(Appearance appearance);

    DFKitPanelView content_;
    // The previous opening's rows, kept until the next so that an action running inside
    // one of them never outlives its view.
    DFKitViews retired_;
    std::unique_ptr<KeyPanel> window_;
    StatusItem* button_ = nullptr;
    std::uint64_t outsideMonitor_ = 0;
    std::uint64_t appearanceToken_ = 0;
    std::optional<double> closedAt_;
    Appearance appearance_ = Appearance::light;
    DFKitView* pressed_ = nullptr;
    DFKitView* hovered_ = nullptr;
    std::vector<const DFKitView*> accessibilityOwners_;
    bool redrawing_ = false;
};

}  // namespace vistrel
