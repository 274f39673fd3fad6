#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "base/overlay_button.h"
#include "platform/ax_element.h"
#include "platform/executor.h"
#include "platform/geometry.h"
#include "session/engine_layouts.h"
#include "tracking/event_tap.h"
#include "tracking/event_tap_delegate.h"
#include "tracking/grant_watch.h"
#include "tracking/mission_control_detector.h"
#include "tracking/mission_control_reading.h"
#include "tracking/overlay_layout.h"
#include "tracking/pointer_coalescer.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/thumbnail_targets.h"
#include "views/overlay_controller.h"

namespace vistrel {

// The heart of the agent. It turns detector ticks into Mission Control opening and
// closing, keeps the thumbnail rectangles fresh, turns pointer positions into a hovered
// window with a button strip, and turns clicks on the strip and shortcuts into window
// actions. Slow accessibility work runs on the hover queue, one job at a time; all state
// lives on the main thread, and results that arrive after Mission Control closed, or for a
// point the pointer has left, are dropped.
class Engine : public EventTapDelegate, public std::enable_shared_from_this<Engine> {
  public:
    static constexpr std::string_view hoverQueueLabel = "com.quillmarsh.vistrel.hover";
    // Thumbnails are re-read on every tick this long after opening, then every few ticks.
    static constexpr int eagerRefreshTicks = 16;
    static constexpr int refreshEvery = 4;
    static constexpr double buttonGap = 4;

    // The hovered window and the buttons it supports.
    struct Target {
        AXElement window;
        Pid pid = 0;
        std::set<OverlayButton> buttons;
    };

    // Made shared, because the tap, the detector and the queue jobs hold it weakly. Without
    // an argument it runs the Layouts feature's own controller.
    static std::shared_ptr<Engine> make();
    static std::shared_ptr<Engine> make(std::unique_ptr<EngineLayouts> layouts);

    // Hooks the engine to its tap, its detector and the layouts, and arms the first tick.
    void start();

    void tapMouseMoved(Point point) override;
    void tapMouseDragged(Point point) override;
    bool tapMouseDown(Point point, std::uint64_t flags) override;
    void tapMouseUp(Point point) override;
    bool tapKeyDown(std::int64_t code, std::uint64_t flags) override;
    void tapFlagsChanged(std::uint64_t flags) override;

    // What the engine holds now, for the status panel and for tests.
    bool active() const { return active_; }
    const std::optional<Target>& target() const { return target_; }
    const std::optional<OverlayLayout>& layout() const { return layout_; }
    const std::vector<Rect>& thumbs() const { return thumbs_; }
    const OverlayController& overlay() const { return overlay_; }
    EventTap& tap() { return tap_; }
    // What the current (or last) opening of Mission Control let the engine read.
    MissionControlReading lastReading() const { return reading_; }
    EngineLayouts& layouts() { return *layouts_; }

    struct Private;  // lets make() reach the constructor through make_shared

    Engine(Private, std::unique_ptr<EngineLayouts> layouts);
    ~Engine() override;

  private:
    // The one hit-test job, made once and reused, so that a pointer move allocates nothing.
    struct HitTest;
    static void runHitTest(HitTest& job);
    static void hitTestAnswered(HitTest& job);

    void tick(bool open);
    void opened();
    void closed();
    void ensureTap();
    void refreshThumbnails();
    void thumbnailsRead(const std::vector<Rect>& frames, const MissionControlReading& reading);
    // A pointer move on its turn of the main queue, after the tap's callback returned.
    void pointerMoved(Point point);
    void pointerDragged(Point point);
    // Option held marks the shelf for deleting.
    void modifiersChanged(std::uint64_t flags);
    void lookUp(Point point);
    void apply(const std::optional<Target>& candidate, Point point);
    std::optional<Rect> smallestThumbAt(Point point) const;
    bool insideStrip(Point point) const;
    bool layoutsKeyDown(std::int64_t code, std::uint64_t flags);
    void clearTarget();
    void afterAction();
    void windowsMoved();

    MissionControlDetector detector_;
    EventTap tap_;
    ThumbnailReader thumbnails_;
    OverlayController overlay_;
    std::unique_ptr<EngineLayouts> layouts_;
    bool active_ = false;
    int ticks_ = 0;
    std::vector<Rect> thumbs_;
    std::optional<Target> target_;
    std::optional<OverlayLayout> layout_;
    std::optional<Rect> targetThumb_;
    // The hovered thumbnail is among those last read: a move over it needs no look through
    // all of them, which with hundreds of windows is most of a move's cost.
    bool targetThumbRead_ = false;
    std::optional<Point> lastPoint_;
    bool tapFailureLogged_ = false;
    Pid ownPid_ = 0;
    std::shared_ptr<SerialQueue> axQueue_;
    GrantWatch grant_;
    std::shared_ptr<HitTest> hitTest_;
    // The thumbnails' windows; read and written on the hover queue only.
    std::shared_ptr<ThumbnailTargets> targets_;
    MissionControlReading reading_;
    PointerCoalescer moves_;
    bool hostLogged_ = false;
    // A read of the thumbnails came back during this opening, so the self-check can judge it.
    bool readThisOpening_ = false;
    bool lookupBusy_ = false;
    std::optional<Point> pendingLookup_;
    bool thumbsBusy_ = false;
    std::uint64_t generation_ = 0;
    Pid dockPid_ = 0;
};

}  // namespace vistrel
