#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/path.h"

namespace vistrel {

enum class LineCap { butt, round, square };
enum class LineJoin { miter, round, bevel };

struct StrokeStyle {
    double width = 1;
    LineCap cap = LineCap::butt;
    LineJoin join = LineJoin::miter;

    friend bool operator==(const StrokeStyle&, const StrokeStyle&) = default;
};

// The fonts the agent ships in its resources, by PostScript name (the files are named
// after them with the extension "ttf").
namespace FontName {
inline constexpr std::string_view geistMono = "GeistMono-Medium";
inline constexpr std::string_view instrumentSans = "InstrumentSans-SemiBold";
}  // namespace FontName

enum class FontWeight { regular, medium, semibold, bold };

// A font by name and size in points. An empty name means the system font of the given
// weight; a named font that cannot be found falls back to the system font of that size.
struct Font {
    std::string name;
    double size = 13;
    FontWeight weight = FontWeight::regular;

    static Font system(double size, FontWeight weight = FontWeight::regular) {
        return {std::string(), size, weight};
    }
    static Font named(std::string_view name, double size) { return {std::string(name), size}; }

    friend bool operator==(const Font&, const Font&) = default;
};

// One line of text in one font and colour. `kern` is extra space in points added after
// every character (letter spacing).
struct TextRun {
    std::string text;  // UTF-8
    Font font;
    Color color;
    double kern = 0;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

// A bitmap: 8-bit sRGB red, green, blue and alpha per pixel (not premultiplied), rows from
// the top. A bitmap whose pixel count does not match its size is not drawn.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;

    bool isValid() const {
        return width > 0 && height > 0 &&
               rgba.size() ==
                   static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    }
};

// Where views draw. Coordinates are points in the space of whoever drew the canvas: a
// display list says whether its space is flipped (origin top-left, y down) or not (origin
// bottom-left, y up, as an AppKit view). Text and images always come out upright.
class Canvas {
  public:
    virtual ~Canvas() = default;

    // Fills the path by the non-zero winding rule.
    virtual void fill(const Path& path, Color color) = 0;
    virtual void stroke(const Path& path, Color color, const StrokeStyle& style) = 0;
    // Draws the run with the left end of its baseline at `baseline`.
    virtual void drawText(const TextRun& run, Point baseline) = 0;
    // Draws the image scaled into the rectangle.
    virtual void drawImage(const std::shared_ptr<const Image>& image, Rect rect) = 0;
    // Intersects the clip with the path (non-zero winding) until the matching restore().
    virtual void clip(const Path& path) = 0;
    // Saves and restores the clip and the transform.
    virtual void save() = 0;
    virtual void restore() = 0;
    virtual void translate(double dx, double dy) = 0;
    virtual void scale(double sx, double sy) = 0;
};

}  // namespace vistrel
