// The engine's keys: the window shortcuts on the hovered window, and the Layouts feature's
// while it is open. A key is kept from the system only when it runs an action.
#include "base/hotkey.h"
#include "session/engine.h"
#include "settings/settings.h"
#include "windows/window_actions.h"

namespace vistrel {

// The layouts' keys while the feature is open: Return and Escape while composing, Command-Z
// while there is a change to undo, Command-1 to 9 for the saved layouts, and the snap keys on
// the hovered window.
bool Engine::layoutsKeyDown(std::int64_t code, std::uint64_t flags) {
    if (layouts_->isComposing() && code == KeyCode::returnKey) {
        layouts_->finishCompose();
        return true;
    }
    if (layouts_->isComposing() && code == KeyCode::escape) {
        layouts_->cancelCompose();
        return true;
    }
    if (Snap::isUndo(code, flags) && layouts_->canUndo()) {
        layouts_->undo();
        return true;
    }
    if (auto index = Snap::layoutIndex(code, flags);
        index && static_cast<std::size_t>(*index) < layouts_->savedCount()) {
        if (layouts_->isComposing()) layouts_->cancelCompose();
        layouts_->restore(static_cast<std::size_t>(*index));
        return true;
    }
    if (auto key = Snap::match(code, flags); key && target_) {
        layouts_->snap(target_->window, target_->pid, *key);
        return true;
    }
    return false;
}

bool Engine::tapKeyDown(std::int64_t code, std::uint64_t flags) {
    moves_.flush();
    if (layouts_->isOpen() && layoutsKeyDown(code, flags)) return true;
    const auto action = matchHotkey(code, flags);
    if (!action || Settings::shared().hotkeyDisabled(*action) || !target_) return false;
    WindowActions::perform(target_->window, target_->pid, *action);
    afterAction();
    return true;
}

}  // namespace vistrel
