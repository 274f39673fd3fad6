#include "ui/kit/dfkit_status_panel.h"

#include <algorithm>

#include "base/log.h"
#include "platform/display_list.h"
#include "platform/platform.h"

namespace vistrel {

namespace {

// The screen a button sits on: the one holding its middle, else the main screen.
std::optional<ScreenDescription> screenOf(Rect button) {
    const std::vector<ScreenDescription> screens = platform().screens.screens();
    for (const ScreenDescription& screen : screens) {
        if (screen.frame.contains(button.mid())) return screen;
    }
    const std::optional<std::size_t> main = platform().screens.mainScreenIndex();
    if (main && *main < screens.size()) return screens[*main];
    return std::nullopt;
}

}  // namespace

DFKitStatusPanel::DFKitStatusPanel() {
    content_.setHost(this);
    appearance_ = platform().appearance.current();
    appearanceToken_ = platform().appearance.observe(
        [this](Appearance appearance) { appearanceChanged(appearance); });
}

DFKitStatusPanel::~DFKitStatusPanel() {
    platform().appearance.stopObserving(appearanceToken_);
    platform().eventMonitors.removeMonitor(outsideMonitor_);
}

void DFKitStatusPanel::makeWindow() {
    window_ = platform().panels.makePanel();
    if (!window_) {
        Log::error("status panel: the panel window could not be made");
        return;
    }
    window_->setEvents({
        .mouseDown = [this](Point point) { mouseDown(point); },
        .mouseUp = [this](Point point) { mouseUp(point); },
        .mouseMoved = [this](std::optional<Point> point) { mouseMoved(point); },
        .scrolled = [this](Point point, double deltaY,
                           bool precise) { scrolled(point, deltaY, precise); },
        .keyDown = [this](std::int64_t keyCode,
                          std::uint64_t flags) { return keyDown(keyCode, flags); },
        .escape =
            [this] {
                if (onEscape) onEscape();
                close();
            },
        .resignedKey = [this] { close(); },
    });
}

void DFKitStatusPanel::open(StatusItem& item) {
    if (!window_) makeWindow();
    if (!window_) return;
    button_ = &item;
    pressed_ = hovered_ = nullptr;
    retired_ = content_.setRows(build ? build() : DFKitViews());
    content_.setHost(this);
    appearance_ = platform().appearance.current();
    position();
    redraw();
    window_->showKey();
    item.setHighlighted(true);
    platform().eventMonitors.removeMonitor(outsideMonitor_);
    outsideMonitor_ = platform().eventMonitors.addOutsideMouseDownMonitor([this] { close(); });
    if (onOpen) onOpen();
}

void DFKitStatusPanel::close() {
    if (!isVisible()) return;
    closedAt_ = platform().clock.now();
    window_->orderOut();
    if (button_) button_->setHighlighted(false);
    platform().eventMonitors.removeMonitor(outsideMonitor_);
    outsideMonitor_ = 0;
    pressed_ = nullptr;
    if (hovered_) hovered_->setHovered(false);
    hovered_ = nullptr;
    if (onClose) onClose();
}

bool DFKitStatusPanel::isVisible() const {
    return window_ && window_->isVisible();
}

void DFKitStatusPanel::position() {
    if (!window_ || !button_) return;
    const std::optional<Rect> button = button_->buttonFrame();
    if (!button) return;
    const std::optional<ScreenDescription> screen = screenOf(*button);
    // Never past the bottom of the screen's visible part: the scrolling rows give way.
    if (screen) content_.fitHeight(button->minY() - screen->visibleFrame.minY() - 2 * screenGap);
    const Size size = content_.frame().size();
    Rect frame{button->midX() - size.width / 2, button->minY() - screenGap - size.height,
               size.width, size.height};
    if (screen) {
        const Rect visible = screen->visibleFrame;
        frame.x = std::clamp(
            frame.x, visible.minX() + screenGap,
            std::max(visible.minX() + screenGap, visible.maxX() - screenGap - size.width));
    }
    window_->setFrame(frame);
    window_->invalidateShadow();
}

void DFKitStatusPanel::setNeedsDisplay() {
    if (isVisible()) redraw();
}

void DFKitStatusPanel::valueChanged(const DFKitView& view) {
    if (!window_) return;
    const auto found = std::find(accessibilityOwners_.begin(), accessibilityOwners_.end(), &view);
    if (found != accessibilityOwners_.end())
        window_->announceValueChanged(
            static_cast<std::size_t>(found - accessibilityOwners_.begin()));
}

void DFKitStatusPanel::redraw() {
    if (!window_ || redrawing_) return;
    redrawing_ = true;
    RecordingCanvas canvas(true);
    content_.display(canvas, appearance_);
    window_->setContent(canvas.finish());
    std::vector<AccessibilityNode> nodes;
    accessibilityOwners_.clear();
    content_.collectAccessibility(nodes, accessibilityOwners_);
    window_->setAccessibilityNodes(std::move(nodes));
    redrawing_ = false;
}

void DFKitStatusPanel::mouseDown(Point point) {
    pressed_ = content_.hitTest(point);
    if (!pressed_) return;
    const Rect frame = pressed_->frameInRoot();
    pressed_->mouseDown({point.x - frame.x, point.y - frame.y});
}

void DFKitStatusPanel::mouseUp(Point point) {
    DFKitView* view = std::exchange(pressed_, nullptr);
    if (!view) return;
    const Rect frame = view->frameInRoot();
    view->mouseUp({point.x - frame.x, point.y - frame.y});
}

void DFKitStatusPanel::mouseMoved(std::optional<Point> point) {
    DFKitView* over = point ? content_.hitTest(*point) : nullptr;
    if (over && !over->tracksHover()) over = nullptr;
    highlight(over);
}

void DFKitStatusPanel::highlight(DFKitView* view) {
    if (view == hovered_) return;
    if (hovered_) hovered_->setHovered(false);
    hovered_ = view;
    if (hovered_) hovered_->setHovered(true);
}

// A positive delta shows what is above, so the rows move down: the offset shrinks.
void DFKitStatusPanel::scrolled(Point point, double deltaY, bool precise) {
    if (!content_.scroll(point, -(precise ? deltaY : deltaY * scrollLine))) return;
    mouseMoved(point);
}

void DFKitStatusPanel::appearanceChanged(Appearance appearance) {
    appearance_ = appearance;
    setNeedsDisplay();
}

}  // namespace vistrel
