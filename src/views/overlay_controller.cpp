#include "views/overlay_controller.h"

#include <string>

#include "base/log.h"
#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "views/turn_deferred_window.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

// The theme the user chose; "classic" when none or an unknown one is stored.
Theme storedTheme() {
    const auto store = Shared::store();
    if (!store) return Theme::classic;
    const auto raw = store->object(std::string(PreferenceKey::buttonTheme)).string();
    if (!raw) return Theme::classic;
    return Theme::fromRaw(*raw).value_or(Theme::classic);
}

Rect unionOfItems(const OverlayLayout& layout) {
    Rect frame = layout.items.empty() ? Rect{} : layout.items.front().rect;
    for (const auto& item : layout.items)
        frame = frame.unite(item.rect);
    return frame;
}

// Each item's rectangle relative to the window frame, in the view's bottom-left space, with
// the theme's look for its button.
std::vector<OverlayView::Item> viewItems(const OverlayLayout& layout, Rect frame, Theme theme) {
    std::vector<OverlayView::Item> items;
    items.reserve(layout.items.size());
    for (const auto& item : layout.items) {
        const Rect local{item.rect.minX() - frame.minX(), frame.maxY() - item.rect.maxY(),
                         item.rect.width, item.rect.height};
        items.push_back({item.kind, local, theme.look(item.kind)});
    }
    return items;
}

}  // namespace

OverlayController::OverlayController() : window_(makeWindow()) {
    view_.attach(window_.get());
}

std::unique_ptr<AgentWindow> OverlayController::makeWindow() {
    auto window = std::make_unique<TurnDeferredWindow>(
        platform().windowHost.makeWindow(WindowDeferral::deferred));
    window->setLevel(AgentWindowLevel::overlay);
    window->setCollectionBehavior(WindowCollectionBehavior::agentOverlay);
    window->setIgnoresMouseEvents(true);
    return window;
}

void OverlayController::show(const OverlayLayout& layout) {
    if (shown_ == layout && window_->isVisible() && window_->isOnActiveSpace()) return;

    const Rect frame = unionOfItems(layout);
    const Rect appKitFrame = Screens::toAppKit(frame);
    view_.configure(viewItems(layout, frame, storedTheme()));
    window_->setFrame(appKitFrame, true);
    window_->orderFrontRegardless();
    if (!window_->isOnActiveSpace()) recreateWindow(appKitFrame);
    shown_ = layout;
}

// A window left behind on another Space cannot be brought back by ordering it front:
// AppKit keeps it there. A new window appears on the active one.
void OverlayController::recreateWindow(Rect frame) {
    Log::info("overlay window is not on the active space, recreating it");
    window_->orderOut();
    view_.attach(nullptr);
    window_ = makeWindow();
    view_.attach(window_.get());
    window_->setFrame(frame, true);
    window_->orderFrontRegardless();
}

void OverlayController::hide() {
    shown_.reset();
    // A hidden strip has no button under the pointer; the next strip starts unhovered.
    setHovered(std::nullopt);
    view_.setNeedsDisplay();
    if (window_->isVisible()) window_->orderOut();
}

void OverlayController::setHovered(std::optional<OverlayButton> hovered) {
    if (hovered == hovered_) return;
    hovered_ = hovered;
    view_.setHovered(hovered);
}

}  // namespace vistrel
