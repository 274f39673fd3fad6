#include "platform/sim/sim_status_bar.h"

#include <algorithm>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

SimStatusItem::~SimStatusItem() {
    bar_.forget(*this);
}

std::optional<Rect> SimStatusItem::buttonFrame() const {
    return bar_.frameOf(*this);
}

void SimStatusItem::click() {
    if (visible_ && action_) action_();
}

std::unique_ptr<StatusItem> SimStatusBar::makeSquareItem() {
    if (refuseItems) return nullptr;
    auto item = std::make_unique<SimStatusItem>(*this);
    items_.push_back(item.get());
    return item;
}

std::optional<Rect> SimStatusBar::frameOf(const SimStatusItem& item) const {
    if (!item.isVisible() || desktop_.screens().empty()) return std::nullopt;
    const Rect screen = desktop_.screens().front().frame;
    double right = screen.maxX() - rightInset;
    for (const SimStatusItem* other : items_) {
        if (!other->isVisible()) continue;
        if (other == &item)
            return Rect{right - simMenuBarHeight, screen.maxY() - simMenuBarHeight,
                        simMenuBarHeight, simMenuBarHeight};
        right -= simMenuBarHeight;
    }
    return std::nullopt;
}

void SimStatusBar::forget(const SimStatusItem& item) {
    std::erase(items_, &item);
}

}  // namespace vistrel
