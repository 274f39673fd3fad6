#include "views/theme.h"

namespace vistrel {

namespace {

constexpr std::array<std::string_view, 5> rawValues = {"classic", "soft", "graphite", "mono",
                                                       "outline"};

// Face colours by button raw value: close, minimize, maximize.
using ButtonColors = std::array<std::string_view, 3>;
constexpr ButtonColors classicFills = {"#EC4640", "#F5BF4F", "#4CC15E"};
constexpr ButtonColors softFills = {"#D9706B", "#E3C47A", "#86BC91"};
constexpr ButtonColors graphiteFills = {"#2C2C2E", "#636366", "#98989D"};
constexpr std::string_view monoFill = "#F5F5F7";
constexpr std::string_view monoGlyph = "#1C1C1E";

constexpr double defaultRingAlpha = 0.18;
constexpr double graphiteRingAlpha = 0.2;
constexpr double monoRingAlpha = 0.35;
constexpr double outlineFillAlpha = 0.3;
constexpr double outlineRingAlpha = 0.85;
constexpr double defaultRingWidth = 1.0;
constexpr double outlineRingWidth = 1.5;

// A colour from the tables above; the system gray stands in should one ever fail to parse.
Color hex(std::string_view text) {
    return Color::fromHex(text).value_or(Color::systemGray());
}

Color byButton(const ButtonColors& colors, OverlayButton button) {
    return hex(colors[static_cast<std::size_t>(button)]);
}

}  // namespace

std::optional<Theme> Theme::fromRaw(std::string_view raw) {
    for (Theme theme : allThemes) {
        if (theme.rawValue() == raw) return theme;
    }
    return std::nullopt;
}

std::string_view Theme::rawValue() const {
    return rawValues[static_cast<std::size_t>(value_)];
}

Theme::Look Theme::look(OverlayButton button) const {
    Look look{Color::systemGray(), Color::white(), Color::black().withAlpha(defaultRingAlpha),
              defaultRingWidth};
    switch (value_) {
        case classic:
            look.fill = byButton(classicFills, button);
            break;
        case soft:
            look.fill = byButton(softFills, button);
            break;
        case graphite:
            look.fill = byButton(graphiteFills, button);
            look.ring = Color::white().withAlpha(graphiteRingAlpha);
            break;
        case mono:
            look.fill = hex(monoFill);
            look.glyph = hex(monoGlyph);
            look.ring = Color::black().withAlpha(monoRingAlpha);
            break;
        case outline:
            look.fill = Color::black().withAlpha(outlineFillAlpha);
            look.ring = Color::white().withAlpha(outlineRingAlpha);
            look.ringWidth = outlineRingWidth;
            break;
    }
    return look;
}

}  // namespace vistrel
