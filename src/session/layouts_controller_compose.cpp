// The Layouts controller's compose mode: a template chosen on the shelf, windows clicked into
// its slots, and the arrangement made and saved when the last slot is filled or Return ends it.
#include <string>
#include <utility>
#include <vector>

#include "base/log.h"
#include "layouts/layout_actions.h"
#include "session/layouts_controller.h"

namespace vistrel {

void LayoutsController::startCompose(int templateIndex) {
    if (!open_ || templateIndex < 0 || static_cast<std::size_t>(templateIndex) >= templates_.size())
        return;
    const LayoutTemplate& chosen = templates_[static_cast<std::size_t>(templateIndex)];
    compose_ = Compose::start(templateIndex, chosen.slots.size(), compose_);
    Log::info("layouts: composing " + chosen.name);
    composeChanged();
}

void LayoutsController::pick(const Pick& pick) {
    if (!open_ || !compose_) return;
    compose_->toggle(pick);
    if (compose_->full()) {
        finishCompose();
        return;
    }
    outline_.flash(pick.thumb, outlineSeconds);
    composeChanged();
}

void LayoutsController::finishCompose() {
    if (!open_ || !compose_ || !screen_) return;
    const Compose finished = *std::exchange(compose_, std::nullopt);
    composeChanged();
    const LayoutTemplate& chosen = templates_[static_cast<std::size_t>(finished.templateIndex)];
    std::vector<LayoutActions::Placement> placements;
    for (std::size_t slot = 0; slot < finished.picks.size(); ++slot) {
        if (const auto& pick = finished.picks[slot])
            placements.push_back({WindowRef{pick->window, pick->pid}, chosen.slots[slot]});
    }
    if (placements.empty()) {
        Log::info("layouts: composing ended with no windows");
        return;
    }
    LayoutActions::arrange(std::move(placements), *screen_,
                           [alive = alive(), name = chosen.name](std::optional<SavedLayout> made) {
                               auto self = alive.lock();
                               if (!self || !made) return;
                               if ((*self)->keep(*made))
                                   Log::info("layouts: saved \"" + made->name + "\" from " + name);
                               (*self)->showShelf();
                               (*self)->windowsMoved();
                           });
}

void LayoutsController::cancelCompose() {
    if (!compose_) return;
    compose_.reset();
    Log::info("layouts: composing cancelled");
    composeChanged();
}

void LayoutsController::composeChanged() {
    publish();
    if (!compose_) {
        caption_.hide();
        badges_.hideAll();
        return;
    }
    const LayoutTemplate& chosen = templates_[static_cast<std::size_t>(compose_->templateIndex)];
    if (layout_) caption_.present(compose_->caption(chosen), std::nullopt, shelfTop(captionLift));
    showBadges();
}

void LayoutsController::showBadges() {
    badges_.hideAll();
    for (std::size_t slot = 0; slot < compose_->picks.size(); ++slot) {
        if (const auto& pick = compose_->picks[slot])
            badges_.show(static_cast<int>(slot + 1), pick->thumb.mid());
    }
}

}  // namespace vistrel
