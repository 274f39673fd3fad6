#pragma once

#import <CoreText/CoreText.h>

#include "platform/canvas.h"
#include "platform/mac/cf_owned.h"
#include "platform/text_measurer.h"

namespace vistrel {

// One run of text laid out by Core Text in its font, colour and letter spacing; null when
// the text is not UTF-8. Drawing and measuring share it, so what is measured is drawn.
CFOwned<CTLineRef> makeTextLine(const TextRun& run);

// Text measured with CTLineGetTypographicBounds.
class MacTextMeasurer : public TextMeasurer {
  public:
    TextMetrics measure(const TextRun& run) override;
};

}  // namespace vistrel
