#include "session/layouts_controller.h"

#include <cmath>
#include <string>
#include <utility>

#include "base/hotkey.h"
#include "base/log.h"
#include "layouts/layout_actions.h"
#include "layouts/layout_store.h"
#include "layouts/shelf_geometry_record.h"
#include "layouts/snap.h"
#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

std::string quoted(const std::string& name) {
    return "\"" + name + "\"";
}

constexpr std::string_view notSaved = "Could not save the layout";

// Curly quotes around a layout's name, for what the user reads.
std::string curlyQuoted(const std::string& name) {
    return "\u201C" + name + "\u201D";
}

std::optional<std::string> bundleOf(Pid pid) {
    const auto app = platform().workspace.application(pid);
    return app ? app->bundleIdentifier : std::nullopt;
}

}  // namespace

LayoutsController::LayoutsController()
    : templates_(LayoutTemplate::all()), self_(std::make_shared<LayoutsController*>(this)) {}

LayoutsController::~LayoutsController() = default;

void LayoutsController::setOnWindowsMoved(std::function<void()> callback) {
    onWindowsMoved_ = std::move(callback);
}

// Opening and closing.

void LayoutsController::missionControlOpened() {
    if (!Settings::shared().layoutsEnabled()) return;
    open_ = true;
    unfolded_ = false;
    const auto store = Shared::store();
    saved_ = store ? LayoutStore::load(*store) : std::vector<SavedLayout>{};
    const auto screens = Screens::snapshot();
    screen_ = Screens::at(platform().windowServer.pointerLocation(), screens);
    // A pointer outside every screen (between displays of different heights) still gets a
    // shelf, on the main display.
    if (!screen_ && !screens.empty()) screen_ = screens.front();
    showShelf();
}

void LayoutsController::missionControlClosed() {
    if (!open_) return;
    if (compose_) {
        compose_.reset();
        Log::info("layouts: composing cancelled, Mission Control closed");
    }
    open_ = false;
    layout_.reset();
    hovered_.reset();
    dropSlot_.reset();
    screen_.reset();
    press_.reset();
    optionHeld_ = false;
    unfolded_ = false;
    shelf_.hide();
    toast_.hide();
    badges_.hideAll();
    caption_.hide();
    outline_.hide();
    clearDebugGeometry();
}

void LayoutsController::showShelf() {
    if (!open_ || !screen_ || !Settings::shared().layoutsShelf()) return;
    layout_ = ShelfLayout::make(static_cast<int>(saved_.size()),
                                static_cast<int>(templates_.size()), screen_->visible);
    if (Settings::shared().layoutsDebugGeometry()) {
        if (const auto store = Shared::store())
            store->set(std::string(PreferenceKey::layoutsDebugShelf),
                       shelfGeometryRecord(*layout_));
    }
    shelf_.show(*layout_, state());
}

void LayoutsController::clearDebugGeometry() {
    const auto store = Shared::store();
    const std::string key(PreferenceKey::layoutsDebugShelf);
    if (store && !store->object(key).isNone()) store->remove(key);
}

ShelfState LayoutsController::state() const {
    ShelfState state;
    state.saved = saved_;
    state.templates = templates_;
    state.folded = !unfolded_;
    state.hovered = hovered_;
    state.dropSlot = dropSlot_;
    state.optionHeld = optionHeld_;
    if (compose_) {
        state.composeTemplate = compose_->templateIndex;
        for (const auto& pick : compose_->picks)
            state.composeApps.push_back(pick ? bundleOf(pick->pid) : std::nullopt);
    }
    if (screen_) state.screenID = screen_->id;
    return state;
}

void LayoutsController::publish() {
    if (layout_) shelf_.show(*layout_, state());
}

std::optional<Rect> LayoutsController::shelfFrame() const {
    if (!open_ || !layout_) return std::nullopt;
    return unfolded_ ? layout_->frame : layout_->pill;
}

void LayoutsController::setOptionHeld(bool held) {
    if (held == optionHeld_) return;
    optionHeld_ = held;
    publish();
}

void LayoutsController::setHovered(std::optional<ShelfLayout::Item> hovered) {
    if (hovered == hovered_) return;
    hovered_ = hovered;
    publish();
}

// The pointer.

bool LayoutsController::inPillBand(Point point) const {
    const Rect& pill = layout_->pill;
    return point.x >= pill.minX() - pillReachX && point.x <= pill.maxX() + pillReachX &&
           point.y >= pill.minY() - pillReachAbove && point.y <= pill.maxY() + pillReachBelow;
}

void LayoutsController::updateFold(Point point) {
    if (compose_ || pressDragging()) return;
    const bool wanted = unfolded_ ? layout_->keepsOpen(point) : inPillBand(point);
    if (wanted == unfolded_) return;
    unfolded_ = wanted;
    publish();
}

bool LayoutsController::pointerMoved(Point point) {
    if (!open_ || !layout_) return false;
    updateFold(point);
    const bool onShelf = unfolded_ ? layout_->frame.contains(point) : layout_->pill.contains(point);
    if (!onShelf) {
        setHovered(std::nullopt);
        return false;
    }
    std::optional<ShelfLayout::Item> item;
    if (unfolded_) {
        if (const auto cell = layout_->cell(point)) item = cell->item;
    }
    setHovered(item);
    return true;
}

void LayoutsController::recordPress(std::optional<Pick> pick, Point start) {
    if (!open_) return;
    press_ = Press{std::move(pick), start, false};
}

bool LayoutsController::mouseDragged(Point point) {
    if (!open_ || !layout_ || !press_) return false;
    if (!press_->dragging) {
        const double distance = std::hypot(point.x - press_->start.x, point.y - press_->start.y);
        if (distance <= dragThreshold) return false;
        press_->dragging = true;
    }
    const auto slot = layout_->slot(point, templates_);
    if (slot != dropSlot_) {
        dropSlot_ = slot;
        publish();
    }
    return true;
}

void LayoutsController::mouseUp(Point point) {
    if (!open_ || !layout_) return;
    const std::optional<Press> press = std::exchange(press_, std::nullopt);
    if (dropSlot_) {
        dropSlot_.reset();
        publish();
    }
    updateFold(point);
    if (!press || !press->dragging || !press->pick) return;
    if (const auto slot = layout_->slot(point, templates_)) drop(*press->pick, *slot, point);
}

void LayoutsController::drop(const Pick& pick, SlotRef slot, Point at) {
    if (!screen_) return;
    const LayoutTemplate& target = templates_[static_cast<std::size_t>(slot.templateIndex)];
    const UnitRect unit = target.slots[static_cast<std::size_t>(slot.slot)];
    Log::info("layouts: window dropped on " + target.name + " slot " +
              std::to_string(slot.slot + 1));
    LayoutActions::arrange({{WindowRef{pick.window, pick.pid}, unit}}, *screen_,
                           [alive = alive(), unit, at](const std::optional<SavedLayout>&) {
                               if (auto self = alive.lock()) {
                                   (*self)->toastMessage(Snap::name(unit), unit, at);
                                   (*self)->windowsMoved();
                               }
                           });
}

bool LayoutsController::shelfClick(Point point, std::uint64_t flags) {
    const auto frame = shelfFrame();
    if (!frame || !frame->contains(point)) return false;
    if (unfolded_) {
        if (const auto cell = layout_->cell(point))
            clicked(cell->item, (flags & ModifierFlag::option) != 0);
    }
    return true;
}

// Clicks on the shelf.

void LayoutsController::clicked(const ShelfLayout::Item& item, bool option) {
    if (!open_) return;
    switch (item.kind) {
        case ShelfLayout::Item::Kind::saved: {
            const auto index = static_cast<std::size_t>(item.index);
            if (item.index < 0 || index >= saved_.size()) return;
            if (option) {
                deleteLayout(index);
                return;
            }
            cancelCompose();
            restoreLayout(index);
            return;
        }
        case ShelfLayout::Item::Kind::layoutTemplate:
            if (compose_ && compose_->templateIndex == item.index) {
                finishCompose();
            } else {
                startCompose(item.index);
            }
            return;
        case ShelfLayout::Item::Kind::save:
            LayoutActions::captureCurrent([alive = alive()](std::optional<SavedLayout> layout) {
                if (auto self = alive.lock()) (*self)->saveCaptured(layout);
            });
            return;
    }
}

void LayoutsController::saveCaptured(const std::optional<SavedLayout>& layout) {
    if (!open_) return;
    if (!layout) {
        toastMessage("No windows to save", std::nullopt);
        return;
    }
    if (!keep(*layout)) return;
    Log::info("layouts: saved the current windows as " + quoted(layout->name) + " (" +
              std::to_string(layout->windows.size()) + ")");
    showShelf();
    toastMessage("Saved " + curlyQuoted(layout->name), std::nullopt);
}

bool LayoutsController::keep(const SavedLayout& layout) {
    const auto store = Shared::store();
    if (!store) return true;
    saved_ = LayoutStore::add(*store, layout);
    if (LayoutStore::contains(*store, layout.id)) return true;
    // The store did not take it (the store has said why): show what is really saved.
    saved_ = LayoutStore::load(*store);
    toastMessage(std::string(notSaved), std::nullopt);
    return false;
}

bool LayoutsController::canUndo() const {
    return LayoutUndo::shared().available();
}

void LayoutsController::undo() {
    LayoutActions::undo([alive = alive()](std::optional<LayoutUndo::Outcome> outcome) {
        auto self = alive.lock();
        if (!self || !outcome) return;
        (*self)->toastMessage(outcome->message(), std::nullopt);
        (*self)->windowsMoved();
    });
}

void LayoutsController::restore(std::size_t index) {
    if (!open_ || index >= saved_.size()) return;
    restoreLayout(index);
}

void LayoutsController::restoreLayout(std::size_t index) {
    const SavedLayout& layout = saved_[index];
    Log::info("layouts: restoring " + quoted(layout.name));
    LayoutActions::restore(layout, [alive = alive()](const LayoutActions::Restored& restored) {
        auto self = alive.lock();
        if (!self) return;
        if (const auto message = restored.message()) (*self)->toastMessage(*message, std::nullopt);
        if (!restored.moved.empty()) (*self)->windowsMoved();
    });
}

void LayoutsController::deleteLayout(std::size_t index) {
    if (!open_ || index >= saved_.size()) return;
    const SavedLayout removed = saved_[index];
    if (const auto store = Shared::store()) saved_ = LayoutStore::remove(*store, removed.id);
    Log::info("layouts: deleted " + quoted(removed.name));
    toastMessage("Deleted " + curlyQuoted(removed.name), std::nullopt);
    showShelf();
}

// Snapping and feedback.

void LayoutsController::snap(const AXElement& window, Pid pid, SnapKey key) {
    if (!open_) return;
    LayoutActions::snap(WindowRef{window, pid}, key,
                        [alive = alive()](std::optional<LayoutActions::Snapped> snapped) {
                            auto self = alive.lock();
                            if (!self || !snapped || !(*self)->open_) return;
                            (*self)->outline_.flash(snapped->frame, outlineSeconds);
                            (*self)->toastMessage(Snap::name(snapped->unit), snapped->unit,
                                                  snapped->frame.mid());
                            (*self)->windowsMoved();
                        });
}

void LayoutsController::toastMessage(const std::string& message, std::optional<UnitRect> unit,
                                     std::optional<Point> at) {
    if (!open_) return;
    toast_.flash(message, unit, at.value_or(shelfTop(toastLift)), toastSeconds);
}

// Just above the shelf's top edge, centred on it; the screen's centre without a shelf.
Point LayoutsController::shelfTop(double lift) const {
    if (layout_) return {layout_->frame.midX(), layout_->frame.minY() - lift};
    if (screen_) return screen_->visible.mid();
    return {};
}

void LayoutsController::windowsMoved() {
    if (onWindowsMoved_) onWindowsMoved_();
}

}  // namespace vistrel
