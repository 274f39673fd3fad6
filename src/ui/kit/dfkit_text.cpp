#include "ui/kit/dfkit_text.h"

#include <sstream>

#include "platform/platform.h"

namespace vistrel {

TextMetrics DFKitText::measure() const {
    return platform().text.measure(run(Appearance::light));
}

void DFKitText::draw(Canvas& canvas, Appearance appearance, double x, double midY) const {
    const TextMetrics metrics = measure();
    canvas.drawText(run(appearance), {x, midY + (metrics.ascent - metrics.descent) / 2});
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
