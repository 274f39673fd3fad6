#include <cmath>
#include <numbers>

#include "ui/kit/dfkit_glyph.h"
#include "ui/kit/glyph_pen.h"
#include "views/shelf_glyphs.h"

// The pictograms, each on the 24-point grid with about 3 points of margin, drawn as a
// line glyph of the system's own symbols would be: round ends, one line weight.

namespace vistrel {

namespace {

constexpr Point centre{12, 12};
constexpr double ringRadius = 8.5;

// A loudspeaker's cone facing right, its back at x 4.
Path cone() {
    return GlyphPen()
        .polygon({{4, 9.5}, {7.5, 9.5}, {12, 5.5}, {12, 18.5}, {7.5, 14.5}, {4, 14.5}})
        .path();
}

Path gear() {
    constexpr int teeth = 8;
    constexpr double outer = 9.2, inner = 6.9;
    constexpr double toothHalf = 9, rootHalf = 15;  // degrees either side of a tooth's axis
    constexpr double degree = std::numbers::pi / 180;
    Path path;
    for (int i = 0; i < teeth; ++i) {
        const double axis = i * 360.0 / teeth;
        const double angles[] = {axis - rootHalf, axis - toothHalf, axis + toothHalf,
                                 axis + rootHalf};
        const double radii[] = {inner, outer, outer, inner};
        for (int j = 0; j < 4; ++j) {
            const Point p{centre.x + radii[j] * std::cos(angles[j] * degree),
                          centre.y + radii[j] * std::sin(angles[j] * degree)};
            if (i == 0 && j == 0)
                path.moveTo(p);
            else
                path.lineTo(p);
        }
    }
    path.close();
    return GlyphPen().add(path).circle(centre, 3).path();
}

Path call() {
    // A handset lying from the top-left to the bottom-right, its ear and mouth pieces
    // turned towards the face.
    return Path()
        .moveTo({8.6, 3.5})
        .lineTo({5.6, 3.5})
        .curveTo({4.4, 3.5}, {3.5, 4.5}, {3.6, 5.7})
        .curveTo({4.4, 13.6}, {10.4, 19.6}, {18.3, 20.4})
        .curveTo({19.5, 20.5}, {20.5, 19.6}, {20.5, 18.4})
        .lineTo({20.5, 15.4})
        .lineTo({16.4, 14.2})
        .lineTo({14.4, 16.2})
        .curveTo({11.6, 14.9}, {9.1, 12.4}, {7.8, 9.6})
        .lineTo({9.8, 7.6})
        .close();
}

Path eye() {
    return GlyphPen()
        .add(Path()
                 .moveTo({2.5, 12})
                 .curveTo({5, 7.2}, {8.4, 5}, {12, 5})
                 .curveTo({15.6, 5}, {19, 7.2}, {21.5, 12})
                 .curveTo({19, 16.8}, {15.6, 19}, {12, 19})
                 .curveTo({8.4, 19}, {5, 16.8}, {2.5, 12})
                 .close())
        .circle(centre, 3)
        .path();
}

// A circle running clockwise from the right round to the top, where it ends in an arrowhead
// heading on, the way "reload" is drawn.
Path refresh() {
    constexpr double radius = 7.5, from = 0, to = 290;
    constexpr double degree = std::numbers::pi / 180;
    const Point tip{centre.x + radius * std::cos(to * degree),
                    centre.y + radius * std::sin(to * degree)};
    // Moving clockwise, the line heads a quarter turn on from the angle it is at.
    return GlyphPen().arc(centre, radius, from, to).arrowhead(tip, to + 90, 4.5).path();
}

Path spark() {
    return Path()
        .moveTo({12, 3})
        .curveTo({12.7, 8.3}, {15.7, 11.3}, {21, 12})
        .curveTo({15.7, 12.7}, {12.7, 15.7}, {12, 21})
        .curveTo({11.3, 15.7}, {8.3, 12.7}, {3, 12})
        .curveTo({8.3, 11.3}, {11.3, 8.3}, {12, 3})
        .close();
}

Path undo() {
    return GlyphPen()
        .polyline({{8.5, 4.5}, {4, 9}, {8.5, 13.5}})
        .add(Path()
                 .moveTo({4, 9})
                 .lineTo({14.5, 9})
                 .curveTo({17.5, 9}, {20, 11.5}, {20, 14.5})
                 .curveTo({20, 17.5}, {17.5, 20}, {14.5, 20})
                 .lineTo({9.5, 20}))
        .path();
}

Path wins() {
    // A window behind another: the back one's outline stops where the front one covers it.
    return GlyphPen()
        .add(Path()
                 .moveTo({8, 15})
                 .lineTo({5, 15})
                 .curveTo({3.9, 15}, {3, 14.1}, {3, 13})
                 .lineTo({3, 6})
                 .curveTo({3, 4.9}, {3.9, 4}, {5, 4})
                 .lineTo({14, 4})
                 .curveTo({15.1, 4}, {16, 4.9}, {16, 6})
                 .lineTo({16, 9}))
        .roundedRect({8, 9, 13, 11}, 2)
        .polyline({{8, 12.5}, {21, 12.5}})
        .path();
}

Path media(DFKitGlyph glyph) {
    switch (glyph) {
        case DFKitGlyph::buds:
            return GlyphPen()
                .circle({7.5, 8}, 3.5)
                .polyline({{9.6, 10.8}, {9.6, 19.5}})
                .circle({16.5, 8}, 3.5)
                .polyline({{14.4, 10.8}, {14.4, 19.5}})
                .path();
        case DFKitGlyph::levels:
            return GlyphPen()
                .polyline({{5, 14}, {5, 19}})
                .polyline({{9.7, 9}, {9.7, 19}})
                .polyline({{14.3, 5}, {14.3, 19}})
                .polyline({{19, 11}, {19, 19}})
                .path();
        case DFKitGlyph::mic:
            return GlyphPen()
                .roundedRect({9, 3, 6, 11.5}, 3)
                .add(Path()
                         .moveTo({5.5, 11})
                         .curveTo({5.5, 15}, {8.4, 17.5}, {12, 17.5})
                         .curveTo({15.6, 17.5}, {18.5, 15}, {18.5, 11}))
                .polyline({{12, 17.5}, {12, 21}})
                .polyline({{8.5, 21}, {15.5, 21}})
                .path();
        case DFKitGlyph::mute:
            return GlyphPen()
                .add(cone())
                .polyline({{15.5, 9.5}, {20.5, 14.5}})
                .polyline({{20.5, 9.5}, {15.5, 14.5}})
                .path();
        case DFKitGlyph::note:
            return GlyphPen()
                .add(Path().addOval({7.2, 14.8, 6.6, 5.2}))
                .polyline({{13.8, 17.2}, {13.8, 4}, {19, 5.6}, {19, 9}, {13.8, 7.4}})
                .path();
        case DFKitGlyph::play:
            return GlyphPen().polygon({{7.5, 4.8}, {19, 12}, {7.5, 19.2}}).path();
        case DFKitGlyph::playpause:
            return GlyphPen()
                .polygon({{3.5, 6.5}, {11.5, 12}, {3.5, 17.5}})
                .polyline({{15.5, 6.5}, {15.5, 17.5}})
                .polyline({{20, 6.5}, {20, 17.5}})
                .path();
        case DFKitGlyph::speaker:
            return GlyphPen()
                .roundedRect({5.5, 3, 13, 18}, 2.5)
                .circle({12, 14.5}, 3.5)
                .dot({12, 7.5})
                .path();
        case DFKitGlyph::volume:
            return GlyphPen()
                .add(cone())
                .arc({12.5, 12}, 3.2, -50, 50)
                .arc({12.5, 12}, 6.8, -52, 52)
                .path();
        default:
            return {};
    }
}

Path shapes(DFKitGlyph glyph) {
    switch (glyph) {
        case DFKitGlyph::apps:
            return GlyphPen()
                .roundedRect({4, 4, 6.8, 6.8}, 2)
                .roundedRect({13.2, 4, 6.8, 6.8}, 2)
                .roundedRect({4, 13.2, 6.8, 6.8}, 2)
                .roundedRect({13.2, 13.2, 6.8, 6.8}, 2)
                .path();
        case DFKitGlyph::arrow:
            return GlyphPen().polyline({{4.5, 12}, {19, 12}}).arrowhead({19, 12}, 0, 6.5).path();
        case DFKitGlyph::check:
            return GlyphPen().polyline({{4.5, 12.5}, {9.5, 17.5}, {19.5, 6.5}}).path();
        case DFKitGlyph::chevrons:
            return GlyphPen()
                .polyline({{7.5, 9.5}, {12, 5}, {16.5, 9.5}})
                .polyline({{7.5, 14.5}, {12, 19}, {16.5, 14.5}})
                .path();
        case DFKitGlyph::close:
            return GlyphPen().polyline({{6, 6}, {18, 18}}).polyline({{18, 6}, {6, 18}}).path();
        case DFKitGlyph::cmd:
            return ShelfGlyphs::command(centre, 16);
        case DFKitGlyph::cursor:
            return GlyphPen()
                .polygon({{6, 3.5},
                          {6, 19},
                          {10, 15.2},
                          {12.8, 21},
                          {15.4, 19.8},
                          {12.6, 14.2},
                          {18, 14.2}})
                .path();
        case DFKitGlyph::dots:
            return GlyphPen().dot({5.5, 12}).dot({12, 12}).dot({18.5, 12}).path();
        case DFKitGlyph::minus:
            return GlyphPen().polyline({{5.5, 12}, {18.5, 12}}).path();
        case DFKitGlyph::plus:
            return GlyphPen().polyline({{12, 5}, {12, 19}}).polyline({{5, 12}, {19, 12}}).path();
        case DFKitGlyph::spark:
            return spark();
        default:
            return media(glyph);
    }
}

Path objects(DFKitGlyph glyph) {
    switch (glyph) {
        case DFKitGlyph::call:
            return call();
        case DFKitGlyph::clock:
            return GlyphPen()
                .circle(centre, ringRadius)
                .polyline({{12, 7}, {12, 12}, {15.5, 14.2}})
                .path();
        case DFKitGlyph::display:
            // A display on a stand.
            return GlyphPen()
                .roundedRect({3, 4, 18, 12}, 2)
                .polyline({{12, 16}, {12, 19.5}})
                .polyline({{8, 20}, {16, 20}})
                .path();
        case DFKitGlyph::dock:
            return GlyphPen()
                .roundedRect({3, 4, 18, 16}, 2.5)
                .roundedRect({7, 14.5, 10, 2.5}, 1.25)
                .path();
        case DFKitGlyph::download:
            return GlyphPen()
                .polyline({{12, 4}, {12, 15}})
                .arrowhead({12, 15}, 90, 5.5)
                .polyline({{4.5, 15.5}, {4.5, 19.5}, {19.5, 19.5}, {19.5, 15.5}})
                .path();
        case DFKitGlyph::eye:
            return eye();
        case DFKitGlyph::flag:
            return GlyphPen()
                .polyline({{5.5, 21}, {5.5, 3.5}})
                .polygon({{5.5, 4}, {18.5, 4}, {15, 8.6}, {18.5, 13.2}, {5.5, 13.2}})
                .path();
        case DFKitGlyph::gear:
            return gear();
        case DFKitGlyph::globe:
            return GlyphPen()
                .circle(centre, ringRadius + 0.5)
                .add(Path().addOval({8, 3, 8, 18}))
                .polyline({{3, 12}, {21, 12}})
                .path();
        case DFKitGlyph::head:
            return GlyphPen()
                .circle({12, 8}, 4)
                .add(Path()
                         .moveTo({4.5, 20.5})
                         .curveTo({4.5, 16.2}, {7.8, 13.6}, {12, 13.6})
                         .curveTo({16.2, 13.6}, {19.5, 16.2}, {19.5, 20.5}))
                .path();
        case DFKitGlyph::info:
            return GlyphPen()
                .circle(centre, ringRadius + 0.5)
                .polyline({{12, 11}, {12, 16.5}})
                .dot({12, 7.8})
                .path();
        case DFKitGlyph::key:
            return GlyphPen()
                .circle({8, 16}, 4.5)
                .polyline({{11.2, 12.8}, {19.5, 4.5}})
                .polyline({{16.4, 7.6}, {18.9, 10.1}})
                .polyline({{14, 10}, {15.9, 11.9}})
                .path();
        default:
            return shapes(glyph);
    }
}

}  // namespace

Path glyphPath(DFKitGlyph glyph) {
    switch (glyph) {
        case DFKitGlyph::power:
            return GlyphPen().arc({12, 13}, 7.5, -60, 240).polyline({{12, 3}, {12, 11}}).path();
        case DFKitGlyph::refresh:
            return refresh();
        case DFKitGlyph::search:
            return GlyphPen().circle({10.5, 10.5}, 6.5).polyline({{15.3, 15.3}, {20, 20}}).path();
        case DFKitGlyph::share:
            return GlyphPen()
                .polyline({{12, 3.5}, {12, 14.5}})
                .arrowhead({12, 3.5}, -90, 4.5)
                .polyline(
                    {{8.5, 9.5}, {5.5, 9.5}, {5.5, 20.5}, {18.5, 20.5}, {18.5, 9.5}, {15.5, 9.5}})
                .path();
        case DFKitGlyph::sliders:
            return GlyphPen()
                .polyline({{4, 7}, {7, 7}})
                .circle({9, 7}, 2)
                .polyline({{11, 7}, {20, 7}})
                .polyline({{4, 12}, {13, 12}})
                .circle({15, 12}, 2)
                .polyline({{17, 12}, {20, 12}})
                .polyline({{4, 17}, {5.5, 17}})
                .circle({7.5, 17}, 2)
                .polyline({{9.5, 17}, {20, 17}})
                .path();
        case DFKitGlyph::terminal:
            return GlyphPen()
                .roundedRect({3, 4.5, 18, 15}, 2.5)
                .polyline({{7, 9.5}, {10, 12}, {7, 14.5}})
                .polyline({{12, 14.5}, {16.5, 14.5}})
                .path();
        case DFKitGlyph::undo:
            return undo();
        case DFKitGlyph::warning:
            return GlyphPen()
                .polygon({{12, 3.5}, {21, 19.5}, {3, 19.5}})
                .polyline({{12, 9.5}, {12, 13.8}})
                .dot({12, 16.6})
                .path();
        case DFKitGlyph::wifi:
            return GlyphPen()
                .dot({12, 18.5})
                .arc({12, 18.5}, 4.5, 225, 315)
                .arc({12, 18.5}, 9, 225, 315)
                .arc({12, 18.5}, 13.5, 228, 312)
                .path();
        case DFKitGlyph::wins:
            return wins();
        default:
            return objects(glyph);
    }
}

}  // namespace vistrel
