#include "ui/kit/dfkit_text.h"

#include <sstream>
#include <string_view>

#include "platform/platform.h"

namespace vistrel {

TextMetrics DFKitText::measure() const {
    return platform().text.measure(run(Appearance::light));
}

void DFKitText::draw(Canvas& canvas, Appearance appearance, double x, double midY) const {
    const TextMetrics metrics = measure();
    canvas.drawText(run(appearance), {x, midY + (metrics.ascent - metrics.descent) / 2});
}

DFKitText DFKitText::fitted(double width) const {
    if (measure().width <= width) return *this;
    static constexpr std::string_view ellipsis = "…";
    DFKitText cut = *this;
    std::string kept = string;
    while (!kept.empty()) {
        // Drop one whole UTF-8 character: its continuation bytes, then its lead byte.
        while (!kept.empty() && (static_cast<unsigned char>(kept.back()) & 0xC0) == 0x80)
            kept.pop_back();
        if (!kept.empty()) kept.pop_back();
        while (!kept.empty() && kept.back() == ' ')
            kept.pop_back();
        cut.string = kept + std::string(ellipsis);
        if (cut.measure().width <= width) return cut;
    }
    cut.string = std::string(ellipsis);
    return cut;
}

std::vector<std::string> DFKitText::wrapped(double width) const {
    std::vector<std::string> lines;
    std::istringstream words(string);
    std::string word;
    std::string current;
    while (words >> word) {
        const std::string candidate = current.empty() ? word : current + " " + word;
        const double candidateWidth =
            platform().text.measure({candidate, font, Color::black(), kern}).width;
        if (!current.empty() && candidateWidth > width) {
            lines.push_back(current);
            current = word;
        } else {
            current = candidate;
        }
    }
    if (!current.empty()) lines.push_back(current);
    return lines;
}

}  // namespace vistrel
