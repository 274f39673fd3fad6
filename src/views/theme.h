#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/overlay_button.h"
#include "platform/color.h"

namespace vistrel {

// The user's choice of how the overlay buttons look, stored under "buttonTheme" by its raw
// text value.
class Theme {
  public:
    enum Value { classic, soft, graphite, mono, outline };

    // The colours and ring width one button is drawn with.
    struct Look {
        Color fill;   // the button's face
        Color glyph;  // the symbol on it
        Color ring;   // the outline stroked around the face
        double ringWidth = 1;

        friend bool operator==(const Look&, const Look&) = default;
    };

    constexpr Theme(Value value) : value_(value) {}

    // Exactly one of the five raw values, letter case included; anything else gives nothing.
    static std::optional<Theme> fromRaw(std::string_view raw);
    std::string_view rawValue() const;
    constexpr Value value() const { return value_; }

    // Pure: a new look at every call, nothing cached.
    Look look(OverlayButton button) const;

    friend constexpr bool operator==(Theme, Theme) = default;

  private:
    Value value_;
};

inline constexpr std::array<Theme, 5> allThemes = {Theme::classic, Theme::soft, Theme::graphite,
                                                   Theme::mono, Theme::outline};

}  // namespace vistrel
