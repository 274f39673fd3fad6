#include "ui/kit/dfkit_key_text.h"

#include <array>
#include <string_view>

#include "views/shelf_glyphs.h"

namespace vistrel {

namespace {

// A symbol is about as wide as a capital letter and keeps a little space after it.
constexpr double symbolSideOfFontSize = 0.66;
constexpr double symbolGapOfFontSize = 0.1;
// Lines a little heavier for the bolder weights, as the letters beside them are.
constexpr double regularLine = 1.1;
constexpr double boldLine = 1.35;

}  // namespace

DFKitKeyText::DFKitKeyText(std::string keys, Font font, DFKitColor color)
    : keys_(std::move(keys)), font_(std::move(font)), color_(color) {
    constexpr std::array<std::pair<std::string_view, Symbol>, 3> symbols = {{
        {"⌘", Symbol::command},
        {"⌥", Symbol::option},
        {"⇧", Symbol::shift},
    }};
    std::string_view rest = keys_;
    while (!rest.empty()) {
        bool matched = false;
        for (const auto& [utf8, symbol] : symbols) {
            if (!rest.starts_with(utf8)) continue;
            pieces_.push_back({symbol, {}});
            rest.remove_prefix(utf8.size());
            matched = true;
            break;
        }
        if (matched) continue;
        if (pieces_.empty() || pieces_.back().symbol != Symbol::none) pieces_.push_back({});
        pieces_.back().text += rest.front();
        rest.remove_prefix(1);
    }
}

double DFKitKeyText::symbolSide() const {
    return font_.size * symbolSideOfFontSize;
}

double DFKitKeyText::pieceWidth(const Piece& piece) const {
    if (piece.symbol != Symbol::none) return symbolSide() + font_.size * symbolGapOfFontSize;
    return DFKitText{piece.text, font_, color_}.measure().width;
}

double DFKitKeyText::width() const {
    double width = 0;
    for (const Piece& piece : pieces_)
        width += pieceWidth(piece);
    return width;
}

void DFKitKeyText::draw(Canvas& canvas, Appearance appearance, double x, double midY) const {
    const Color color = color_.resolved(appearance);
    const double side = symbolSide();
    const StrokeStyle style{font_.weight >= FontWeight::semibold ? boldLine : regularLine,
                            LineCap::round, LineJoin::round};
    for (const Piece& piece : pieces_) {
        const double left = x, top = midY - side / 2, right = x + side, bottom = midY + side / 2;
        switch (piece.symbol) {
            case Symbol::command:
                canvas.stroke(ShelfGlyphs::command({x + side / 2, midY}, side), color, style);
                break;
            case Symbol::option:
                canvas.stroke(Path()
                                  .moveTo({left, top})
                                  .lineTo({left + side * 0.32, top})
                                  .lineTo({right - side * 0.3, bottom})
                                  .lineTo({right, bottom})
                                  .moveTo({right - side * 0.36, top})
                                  .lineTo({right, top}),
                              color, style);
                break;
            case Symbol::shift:
                canvas.stroke(Path()
                                  .moveTo({x + side / 2, top})
                                  .lineTo({right, midY})
                                  .lineTo({right - side * 0.25, midY})
                                  .lineTo({right - side * 0.25, bottom})
                                  .lineTo({left + side * 0.25, bottom})
                                  .lineTo({left + side * 0.25, midY})
                                  .lineTo({left, midY})
                                  .close(),
                              color, style);
                break;
            case Symbol::none:
                DFKitText{piece.text, font_, color_}.draw(canvas, appearance, x, midY);
                break;
        }
        x += pieceWidth(piece);
    }
}

}  // namespace vistrel
