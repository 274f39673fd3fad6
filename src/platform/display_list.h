#pragma once

#include <memory>
#include <utility>
#include <variant>
#include <vector>

#include "platform/canvas.h"

namespace vistrel {

// A recorded drawing: what a view drew, operation by operation, ready to be replayed into
// any canvas (Core Graphics on macOS, Cairo in the simulator) or inspected by a test. A
// list is immutable once handed to a window; windows share it through shared_ptr<const>.
class DisplayList {
  public:
    struct Fill {
        Path path;
        Color color;
    };
    struct Stroke {
        Path path;
        Color color;
        StrokeStyle style;
    };
    struct Text {
        TextRun run;
        Point baseline;
    };
    struct DrawImage {
        std::shared_ptr<const Image> image;
        Rect rect;
    };
    struct Clip {
        Path path;
    };
    struct Save {};
    struct Restore {};
    struct Translate {
        double dx = 0;
        double dy = 0;
    };
    struct Scale {
        double sx = 1;
        double sy = 1;
    };
    using Operation =
        std::variant<Fill, Stroke, Text, DrawImage, Clip, Save, Restore, Translate, Scale>;

    // `flipped`: the list's origin is the top-left of its view with y going down; otherwise
    // the bottom-left with y going up, as an AppKit view that is not flipped.
    explicit DisplayList(bool flipped = false) : flipped_(flipped) {}

    bool flipped() const { return flipped_; }
    const std::vector<Operation>& operations() const { return operations_; }
    bool isEmpty() const { return operations_.empty(); }
    // Appends one operation, built in place.
    template <typename Kind, typename... Arguments>
    void add(Arguments&&... arguments) {
        operations_.emplace_back(std::in_place_type<Kind>,
                                 Kind{std::forward<Arguments>(arguments)...});
    }

    // Draws every operation into the canvas, in order. Saves and restores are kept in
    // balance: a restore without a save is skipped and saves left open are restored at the
    // end, so a faulty list cannot leave its clip or transform on the canvas.
    void replay(Canvas& canvas) const;

    // Every operation of one kind, in order (for tests and tools that look into a drawing).
    template <typename Kind>
    std::vector<Kind> all() const {
        std::vector<Kind> found;
        for (const Operation& operation : operations_) {
            if (const Kind* kind = std::get_if<Kind>(&operation)) found.push_back(*kind);
        }
        return found;
    }

  private:
    bool flipped_;
    std::vector<Operation> operations_;
};

// The canvas views draw into: it records each call into a display list.
class RecordingCanvas : public Canvas {
  public:
    explicit RecordingCanvas(bool flipped = false)
        : list_(std::make_shared<DisplayList>(flipped)) {}

    void fill(const Path& path, Color color) override;
    void stroke(const Path& path, Color color, const StrokeStyle& style) override;
    void drawText(const TextRun& run, Point baseline) override;
    void drawImage(const std::shared_ptr<const Image>& image, Rect rect) override;
    void clip(const Path& path) override;
    void save() override;
    void restore() override;
    void translate(double dx, double dy) override;
    void scale(double sx, double sy) override;

    // The list recorded so far; the canvas starts a new one afterwards.
    std::shared_ptr<const DisplayList> finish();

  private:
    std::shared_ptr<DisplayList> list_;
};

}  // namespace vistrel
