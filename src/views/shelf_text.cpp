#include "views/shelf_text.h"

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view ellipsis = "…";

// Takes the last character off UTF-8 text, with all of its bytes.
void dropLastCharacter(std::string& text) {
    constexpr unsigned char continuationMask = 0xC0;
    constexpr unsigned char continuationBits = 0x80;
    while (!text.empty() &&
           (static_cast<unsigned char>(text.back()) & continuationMask) == continuationBits) {
        text.pop_back();
    }
    if (!text.empty()) text.pop_back();
}

}  // namespace

double ShelfText::width(const TextRun& run) {
    return platform().text.measure(run).width;
}

TextRun ShelfText::fitted(TextRun run, double maxWidth) {
    if (width(run) <= maxWidth) return run;
    std::string kept = run.text;
    while (!kept.empty()) {
        dropLastCharacter(kept);
        // No space is left dangling before the ellipsis.
        while (!kept.empty() && kept.back() == ' ')
            kept.pop_back();
        run.text = kept + std::string(ellipsis);
        if (width(run) <= maxWidth) return run;
    }
    run.text = std::string(ellipsis);
    return run;
}

void ShelfText::drawCentred(Canvas& canvas, const TextRun& run, double midX, double baseline) {
    canvas.drawText(run, {midX - width(run) / 2, baseline});
}

double ShelfText::centredBaseline(const TextRun& run, double midY) {
    const TextMetrics metrics = platform().text.measure(run);
    return midY + (metrics.ascent - metrics.descent) / 2;
}

}  // namespace vistrel
