#include "platform/display_list.h"

namespace vistrel {

namespace {

// Hands each operation to the matching canvas call, keeping saves and restores balanced.
class Replayer {
  public:
    explicit Replayer(Canvas& canvas) : canvas_(canvas) {}
    ~Replayer() {
        for (; depth_ > 0; --depth_)
            canvas_.restore();
    }

    void operator()(const DisplayList::Fill& op) { canvas_.fill(op.path, op.color); }
    void operator()(const DisplayList::Stroke& op) { canvas_.stroke(op.path, op.color, op.style); }
    void operator()(const DisplayList::Text& op) { canvas_.drawText(op.run, op.baseline); }
    void operator()(const DisplayList::DrawImage& op) { canvas_.drawImage(op.image, op.rect); }
    void operator()(const DisplayList::Clip& op) { canvas_.clip(op.path); }
    void operator()(const DisplayList::Save&) {
        ++depth_;
        canvas_.save();
    }
    void operator()(const DisplayList::Restore&) {
        if (depth_ == 0) return;
        --depth_;
        canvas_.restore();
    }
    void operator()(const DisplayList::Translate& op) { canvas_.translate(op.dx, op.dy); }
    void operator()(const DisplayList::Scale& op) { canvas_.scale(op.sx, op.sy); }

  private:
    Canvas& canvas_;
    int depth_ = 0;
};

}  // namespace

void DisplayList::replay(Canvas& canvas) const {
    Replayer replayer(canvas);
    for (const Operation& operation : operations_)
        std::visit(replayer, operation);
}

void RecordingCanvas::fill(const Path& path, Color color) {
    list_->add<DisplayList::Fill>(path, color);
}

void RecordingCanvas::stroke(const Path& path, Color color, const StrokeStyle& style) {
    list_->add<DisplayList::Stroke>(path, color, style);
}

void RecordingCanvas::drawText(const TextRun& run, Point baseline) {
    list_->add<DisplayList::Text>(run, baseline);
}

void RecordingCanvas::drawImage(const std::shared_ptr<const Image>& image, Rect rect) {
    list_->add<DisplayList::DrawImage>(image, rect);
}

void RecordingCanvas::clip(const Path& path) {
    list_->add<DisplayList::Clip>(path);
}
void RecordingCanvas::save() {
    list_->add<DisplayList::Save>();
}
void RecordingCanvas::restore() {
    list_->add<DisplayList::Restore>();
}
void RecordingCanvas::translate(double dx, double dy) {
    list_->add<DisplayList::Translate>(dx, dy);
}
void RecordingCanvas::scale(double sx, double sy) {
    list_->add<DisplayList::Scale>(sx, sy);
}

std::shared_ptr<const DisplayList> RecordingCanvas::finish() {
    auto done = std::move(list_);
    list_ = std::make_shared<DisplayList>(done->flipped());
    return done;
}

}  // namespace vistrel
