#include "platform/sim/sim_native_menus.h"

namespace vistrel {

void SimNativeMenus::popUp(std::vector<NativeMenuItem> items, KeyPanel& panel, Point point) {
    if (failPopUps) return;
    ++popUps_;
    open_ = SimOpenMenu{std::move(items), &panel, point};
}

bool SimNativeMenus::choose(std::string_view title) {
    if (!open_) return false;
    for (const NativeMenuItem& item : open_->items) {
        if (item.separator || item.title != title) continue;
        const std::function<void()> handler = item.handler;
        open_.reset();
        if (handler) handler();
        return true;
    }
    return false;
}

}  // namespace vistrel
