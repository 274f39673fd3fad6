#pragma once

#include <functional>
#include <optional>

#include "session/engine_layouts.h"

namespace vistrel::testing {

// A Layouts feature that stays out of the way unless a test tells it otherwise: it shows
// no shelf until told to, and it lets the test claim the pointer and report moved windows at will.
class FakeEngineLayouts : public EngineLayouts {
  public:
    void missionControlOpened() override {}
    void missionControlClosed() override {}
    void setOnWindowsMoved(std::function<void()> callback) override {
        onWindowsMoved = std::move(callback);
    }

    bool pointerMoved(Point) override { return claimsPointer; }
    bool mouseDragged(Point) override { return false; }
    void mouseUp(Point) override {}
    bool shelfClick(Point, std::uint64_t) override { return false; }

    bool isOpen() const override { return false; }
    bool isComposing() const override { return false; }
    void pick(const Pick&) override {}
    void recordPress(std::optional<Pick>, Point) override {}
    bool pressDragging() const override { return false; }
    void finishCompose() override {}
    void cancelCompose() override {}

    std::optional<Rect> shelfFrame() const override { return shelf; }
    bool optionHeld() const override { return false; }
    void setOptionHeld(bool) override {}

    bool canUndo() const override { return false; }
    void undo() override {}
    std::size_t savedCount() const override { return 0; }
    void restore(std::size_t) override {}
    void snap(const AXElement&, Pid, SnapKey) override {}

    // While set, the shelf takes every pointer move for itself.
    bool claimsPointer = false;
    // Where the shelf is shown, if it is.
    std::optional<Rect> shelf;
    std::function<void()> onWindowsMoved;
};

}  // namespace vistrel::testing
