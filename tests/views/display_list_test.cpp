#include "platform/display_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vistrel {
namespace {

// Writes down which canvas calls arrive, in order.
class CallLog : public Canvas {
  public:
    void fill(const Path&, Color) override { calls.push_back("fill"); }
    void stroke(const Path&, Color, const StrokeStyle&) override { calls.push_back("stroke"); }
    void drawText(const TextRun& run, Point) override { calls.push_back("text " + run.text); }
    void drawImage(const std::shared_ptr<const Image>&, Rect) override { calls.push_back("image"); }
    void clip(const Path&) override { calls.push_back("clip"); }
    void save() override { calls.push_back("save"); }
    void restore() override { calls.push_back("restore"); }
    void translate(double, double) override { calls.push_back("translate"); }
    void scale(double, double) override { calls.push_back("scale"); }

    std::vector<std::string> calls;
};

TEST(DisplayList, ReplaysEveryRecordedCallInOrder) {
    RecordingCanvas canvas;
    canvas.save();
    canvas.clip(Path::rect({0, 0, 5, 5}));
    canvas.translate(1, 2);
    canvas.scale(2, 2);
    canvas.fill(Path::oval({0, 0, 4, 4}), Color::white());
    canvas.stroke(Path::rect({0, 0, 4, 4}), Color::black(), {});
    canvas.drawText({"hi", Font::system(12), Color::white(), 0}, {0, 10});
    canvas.drawImage(std::make_shared<Image>(), {0, 0, 1, 1});
    canvas.restore();
    CallLog log;
    canvas.finish()->replay(log);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"save", "clip", "translate", "scale", "fill",
                                                   "stroke", "text hi", "image", "restore"}));
}

TEST(DisplayList, KeepsWhatWasRecordedForInspection) {
    RecordingCanvas canvas;
    const StrokeStyle style{2.5, LineCap::round, LineJoin::bevel};
    canvas.stroke(Path().moveTo({1, 1}).lineTo({3, 3}), Color{1, 0, 0, 0.5}, style);
    const auto strokes = canvas.finish()->all<DisplayList::Stroke>();
    ASSERT_EQ(strokes.size(), 1u);
    EXPECT_EQ(strokes[0].style, style);
    EXPECT_EQ(strokes[0].color, (Color{1, 0, 0, 0.5}));
    EXPECT_EQ(strokes[0].path.elements().size(), 2u);
}

TEST(DisplayList, ARestoreWithoutASaveIsSkipped) {
    RecordingCanvas canvas;
    canvas.restore();
    canvas.fill(Path::rect({0, 0, 1, 1}), Color::black());
    CallLog log;
    canvas.finish()->replay(log);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"fill"}));
}

TEST(DisplayList, SavesLeftOpenAreRestoredAtTheEnd) {
    RecordingCanvas canvas;
    canvas.save();
    canvas.save();
    canvas.restore();
    canvas.clip(Path::rect({0, 0, 1, 1}));
    CallLog log;
    canvas.finish()->replay(log);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"save", "save", "restore", "clip", "restore"}));
}

TEST(DisplayList, FinishStartsANewListWithTheSameOrientation) {
    RecordingCanvas canvas(true);
    canvas.fill(Path::rect({0, 0, 1, 1}), Color::black());
    const auto first = canvas.finish();
    const auto second = canvas.finish();
    EXPECT_EQ(first->operations().size(), 1u);
    EXPECT_TRUE(second->isEmpty());
    EXPECT_TRUE(second->flipped());
}

TEST(Path, AnOvalIsFourCurvesTouchingTheMiddleOfEachSide) {
    const Rect rect{10, 20, 40, 30};
    const Path oval = Path::oval(rect);
    int curves = 0;
    for (const auto& element : oval.elements())
        curves += element.verb == Path::Verb::curve;
    EXPECT_EQ(curves, 4);
    EXPECT_EQ(oval.elements().front().points[0], (Point{30, 20}));
    EXPECT_EQ(oval.controlBounds(), rect);
    for (const auto& element : oval.elements())
        EXPECT_NE(element.verb, Path::Verb::line);
}

TEST(Path, ARoundedRectangleHasStraightSidesBetweenItsCorners) {
    const Path path = Path::roundedRect({0, 0, 100, 40}, 8);
    int lines = 0;
    for (const auto& element : path.elements())
        lines += element.verb == Path::Verb::line;
    EXPECT_EQ(lines, 4);
    EXPECT_EQ(path.controlBounds(), (Rect{0, 0, 100, 40}));
    EXPECT_EQ(path.elements().front().points[0], (Point{8, 0}));
}

TEST(Path, ACornerRadiusBeyondHalfTheShorterSideIsReducedToIt) {
    const Path path = Path::roundedRect({0, 0, 100, 40}, 60);
    EXPECT_EQ(path.elements().front().points[0], (Point{20, 0}));
    EXPECT_EQ(path.controlBounds(), (Rect{0, 0, 100, 40}));
}

TEST(Path, ARectangleIsOneClosedSubpath) {
    const Path path = Path::rect({1, 2, 3, 4});
    ASSERT_EQ(path.elements().size(), 5u);
    EXPECT_EQ(path.elements().back().verb, Path::Verb::close);
    EXPECT_EQ(path.elements()[2].points[0], (Point{4, 6}));
}

}  // namespace
}  // namespace vistrel
