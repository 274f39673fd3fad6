#pragma once

#include <string>
#include <vector>

#include "ui/kit/dfkit_text.h"

namespace vistrel {

// A key combination such as "⌥⌘W": the modifier symbols drawn as line glyphs, the same in
// every font (not every font has them), and the other characters as text.
class DFKitKeyText {
  public:
    DFKitKeyText(std::string keys, Font font, DFKitColor color);

    const std::string& string() const { return keys_; }
    double width() const;
    // Draws the combination with its left end at `x`, centred on the line `midY`.
    void draw(Canvas& canvas, Appearance appearance, double x, double midY) const;

  private:
    enum class Symbol { none, command, option, shift };
    struct Piece {
        Symbol symbol = Symbol::none;
        std::string text;
    };

    double pieceWidth(const Piece& piece) const;
    double symbolSide() const;

    std::string keys_;
    Font font_;
    DFKitColor color_;
    std::vector<Piece> pieces_;
};

}  // namespace vistrel
