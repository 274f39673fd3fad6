#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_template.h"
#include "layouts/saved_layout.h"
#include "layouts/shelf_layout.h"
#include "layouts/shelf_state.h"
#include "layouts/slot_ref.h"
#include "session/compose.h"
#include "session/engine_layouts.h"
#include "views/badge_controller.h"
#include "views/hud_controller.h"
#include "views/outline_controller.h"
#include "views/shelf_controller.h"
#include "windows/screen_info.h"

namespace vistrel {

// Runs the Layouts feature while Mission Control is open: the shelf with the saved layouts
// and the templates, folding and unfolding with the pointer, composing a layout by clicking
// windows into a template's slots, dropping a window onto a slot, restoring, deleting and
// saving layouts, and snapping the hovered window. The window work goes to LayoutActions;
// this object keeps the state and the feedback windows. Main thread only.
class LayoutsController : public EngineLayouts {
  public:
    // A press becomes a drag once the pointer is this far from where it went down.
    static constexpr double dragThreshold = 6;
    // The folded pill unfolds when the pointer comes this close: this far to either side,
    // this far above and this far below it.
    static constexpr double pillReachX = 24;
    static constexpr double pillReachAbove = 10;
    static constexpr double pillReachBelow = 140;
    // How long confirmations and outlines stay, in seconds.
    static constexpr double toastSeconds = 1.4;
    static constexpr double outlineSeconds = 0.6;
    // Where the caption and the toast sit, above the shelf's top edge.
    static constexpr double captionLift = 30;
    static constexpr double toastLift = 78;

    LayoutsController();
    ~LayoutsController() override;
    LayoutsController(const LayoutsController&) = delete;
    LayoutsController& operator=(const LayoutsController&) = delete;

    void missionControlOpened() override;
    void missionControlClosed() override;
    void setOnWindowsMoved(std::function<void()> callback) override;

    bool pointerMoved(Point point) override;
    bool mouseDragged(Point point) override;
    void mouseUp(Point point) override;
    bool shelfClick(Point point, std::uint64_t flags) override;

    bool isOpen() const override { return open_; }
    bool isComposing() const override { return compose_.has_value(); }
    void pick(const Pick& pick) override;
    void recordPress(std::optional<Pick> pick, Point start) override;
    bool pressDragging() const override { return press_ && press_->dragging; }
    void finishCompose() override;
    void cancelCompose() override;

    std::optional<Rect> shelfFrame() const override;
    bool optionHeld() const override { return optionHeld_; }
    void setOptionHeld(bool held) override;

    bool canUndo() const override;
    void undo() override;
    std::size_t savedCount() const override { return saved_.size(); }
    void restore(std::size_t index) override;
    void snap(const AXElement& window, Pid pid, SnapKey key) override;

    // The click rules for one shelf item.
    void clicked(const ShelfLayout::Item& item, bool option);
    void startCompose(int templateIndex);
    void setHovered(std::optional<ShelfLayout::Item> hovered);
    // Deletes a saved layout by its index on the shelf; out of range does nothing.
    void deleteLayout(std::size_t index);

    // What the shelf shows now.
    ShelfState state() const;
    bool unfolded() const { return unfolded_; }
    const std::optional<ShelfLayout>& layout() const { return layout_; }
    const std::optional<ScreenInfo>& screen() const { return screen_; }
    const std::vector<SavedLayout>& saved() const { return saved_; }
    const std::optional<Compose>& compose() const { return compose_; }
    const std::optional<SlotRef>& dropSlot() const { return dropSlot_; }
    const std::optional<ShelfLayout::Item>& hovered() const { return hovered_; }

    const ShelfController& shelf() const { return shelf_; }
    const HUDController& toast() const { return toast_; }
    const HUDController& caption() const { return caption_; }
    const BadgeController& badges() const { return badges_; }
    const OutlineController& outline() const { return outline_; }

  private:
    struct Press {
        std::optional<Pick> pick;
        Point start;
        bool dragging = false;
    };
    // Completions run only while the controller that asked for them lives.
    using Alive = std::weak_ptr<LayoutsController*>;

    void showShelf();
    void publish();
    void composeChanged();
    void showBadges();
    void updateFold(Point point);
    bool inPillBand(Point point) const;
    void saveCaptured(const std::optional<SavedLayout>& layout);
    // Adds a layout to the saved ones; false, with a toast saying so, when it was not kept.
    bool keep(const SavedLayout& layout);
    void restoreLayout(std::size_t index);
    void drop(const Pick& pick, SlotRef slot, Point at);
    void toastMessage(const std::string& message, std::optional<UnitRect> unit,
                      std::optional<Point> at = std::nullopt);
    Point shelfTop(double lift) const;
    void windowsMoved();
    void clearDebugGeometry();
    Alive alive() const { return self_; }

    std::vector<LayoutTemplate> templates_;
    bool open_ = false;
    bool unfolded_ = false;
    std::optional<ShelfLayout> layout_;
    std::optional<ScreenInfo> screen_;
    std::vector<SavedLayout> saved_;
    std::optional<ShelfLayout::Item> hovered_;
    std::optional<SlotRef> dropSlot_;
    bool optionHeld_ = false;
    std::optional<Compose> compose_;
    std::optional<Press> press_;
    std::function<void()> onWindowsMoved_;

    ShelfController shelf_;
    HUDController toast_;
    HUDController caption_;
    BadgeController badges_;
    OutlineController outline_;
    std::shared_ptr<LayoutsController*> self_;
};

}  // namespace vistrel
