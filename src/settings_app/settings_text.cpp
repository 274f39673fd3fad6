#include "settings_app/settings_text.h"

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view ellipsis = "…";

// The baseline that centres the run's line box on `midY` in a space with y down.
double baselineFor(const TextMetrics& metrics, double midY) {
    return midY + (metrics.ascent - metrics.descent) / 2;
}

bool isContinuationByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

namespace SettingsText {

double width(const TextRun& run) {
    return platform().text.measure(run).width;
}

void drawLeft(Canvas& canvas, const TextRun& run, double x, double midY) {
    canvas.drawText(run, {x, baselineFor(platform().text.measure(run), midY)});
}

void drawRight(Canvas& canvas, const TextRun& run, double maxX, double midY) {
    const TextMetrics metrics = platform().text.measure(run);
    canvas.drawText(run, {maxX - metrics.width, baselineFor(metrics, midY)});
}

void drawCentred(Canvas& canvas, const TextRun& run, Point centre) {
    const TextMetrics metrics = platform().text.measure(run);
    canvas.drawText(run, {centre.x - metrics.width / 2, baselineFor(metrics, centre.y)});
}

std::string fitted(const TextRun& run, double maxWidth) {
    if (width(run) <= maxWidth) return run.text;
    TextRun shorter = run;
    std::string kept = run.text;
    while (!kept.empty()) {
        // Drop one whole UTF-8 character at a time.
        while (!kept.empty() && isContinuationByte(kept.back()))
            kept.pop_back();
        if (!kept.empty()) kept.pop_back();
        shorter.text = kept + std::string(ellipsis);
        if (width(shorter) <= maxWidth) return shorter.text;
    }
    return std::string(ellipsis);
}

std::vector<std::string> lines(const TextRun& run, double maxWidth, std::size_t maxLines) {
    std::vector<std::string> result;
    TextRun probe = run;
    std::string line;
    std::size_t start = 0;
    while (start < run.text.size() && result.size() < maxLines) {
        const std::size_t space = run.text.find(' ', start);
        const std::size_t end = space == std::string::npos ? run.text.size() : space;
        const std::string word = run.text.substr(start, end - start);
        probe.text = line.empty() ? word : line + " " + word;
        if (!line.empty() && width(probe) > maxWidth) {
            result.push_back(line);
            line.clear();
            continue;  // the word starts the next line
        }
        line = probe.text;
        start = end + 1;
    }
    if (!line.empty() && result.size() < maxLines) result.push_back(line);
    if (!result.empty()) {
        // Text left over, or a single word too long for its line, ends in an ellipsis.
        probe.text = result.back() + (start < run.text.size() ? std::string(ellipsis) : "");
        result.back() = fitted(probe, maxWidth);
    }
    return result;
}

}  // namespace SettingsText

}  // namespace vistrel
