#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "layouts/snap.h"
#include "platform/ax_element.h"
#include "platform/geometry.h"
#include "platform/process.h"

namespace vistrel {

// What the engine asks of the Layouts feature while Mission Control is open: the shelf's
// claim on the pointer, the compose state, presses on thumbnails, and the keys that restore
// or snap. Main thread only.
class EngineLayouts {
  public:
    // A window of another application as the pointer found it in Mission Control.
    struct Pick {
        AXElement window;
        Pid pid = 0;
        Rect thumb;
    };

    virtual ~EngineLayouts() = default;

    virtual void missionControlOpened() = 0;
    virtual void missionControlClosed() = 0;
    // Called after the feature had windows moved, so the engine re-reads the thumbnails.
    virtual void setOnWindowsMoved(std::function<void()> callback) = 0;

    // True when the shelf takes the pointer (or a drag) for itself.
    virtual bool pointerMoved(Point point) = 0;
    virtual bool mouseDragged(Point point) = 0;
    virtual void mouseUp(Point point) = 0;
    // True when a mouse-down landed on the shelf and was handled there.
    virtual bool shelfClick(Point point, std::uint64_t flags) = 0;

    // The feature is active in an open Mission Control.
    virtual bool isOpen() const = 0;
    virtual bool isComposing() const = 0;
    // Puts a clicked window into the next slot of the layout being composed.
    virtual void pick(const Pick& pick) = 0;
    // Remembers a press on a thumbnail (or on nothing) that Mission Control also receives.
    virtual void recordPress(std::optional<Pick> pick, Point start) = 0;
    // The recorded press has moved far enough to count as a drag.
    virtual bool pressDragging() const = 0;
    virtual void finishCompose() = 0;
    // Ends composing without saving, logging the cancellation once.
    virtual void cancelCompose() = 0;

    // The frame the shelf occupies now (unfolded or folded); none while no shelf is shown.
    virtual std::optional<Rect> shelfFrame() const = 0;
    virtual bool optionHeld() const = 0;
    // Stores the Option state and redraws the shelf when one is shown.
    virtual void setOptionHeld(bool held) = 0;

    // A restore, arrangement or snap of the last ten minutes can be undone.
    virtual bool canUndo() const = 0;
    // Puts its windows back and says how it went.
    virtual void undo() = 0;

    virtual std::size_t savedCount() const = 0;
    virtual void restore(std::size_t index) = 0;
    // Snaps a window with a snap key and reports where it went.
    virtual void snap(const AXElement& window, Pid pid, SnapKey key) = 0;
};

}  // namespace vistrel
