#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/geometry.h"

namespace vistrel {

// Lines of text placed by their box rather than their baseline, measured the way the canvas
// draws them. For the flipped spaces of the Settings window and its pictures (y down).
namespace SettingsText {
double width(const TextRun& run);
// The run with its left end at `x`, its line centred on `midY`.
void drawLeft(Canvas& canvas, const TextRun& run, double x, double midY);
// The run ending at `maxX`, centred on `midY`.
void drawRight(Canvas& canvas, const TextRun& run, double maxX, double midY);
// The run centred on `centre`.
void drawCentred(Canvas& canvas, const TextRun& run, Point centre);
// The text broken at spaces into lines that fit `maxWidth` (a word longer than a line is
// cut with "…"), at most `maxLines` of them, the last one ending in "…" when text is left.
std::vector<std::string> lines(const TextRun& run, double maxWidth, std::size_t maxLines);
// The longest start of `text` that fits `maxWidth` in the run's font, with "…" when cut.
std::string fitted(const TextRun& run, double maxWidth);
}  // namespace SettingsText

}  // namespace vistrel
