#include "platform/mac/mac_text.h"
#include "platform/mac/mac_strings.h"

#import <AppKit/AppKit.h>

namespace vistrel {

namespace {

NSFontWeight nsWeight(FontWeight weight) {
    switch (weight) {
        case FontWeight::regular:
            return NSFontWeightRegular;
        case FontWeight::medium:
            return NSFontWeightMedium;
        case FontWeight::semibold:
            return NSFontWeightSemibold;
        case FontWeight::bold:
            return NSFontWeightBold;
    }
    return NSFontWeightRegular;
}

// A bundled font by PostScript name (registered for the process at launch); the system
// font of the same size when it is not there.
NSFont* nsFont(const Font& font) {
    if (!font.name.empty()) {
        NSString* name = nsString(font.name);
        if (NSFont* named = [NSFont fontWithName:name size:font.size]) return named;
    }
    return [NSFont systemFontOfSize:font.size weight:nsWeight(font.weight)];
}

}  // namespace

CFOwned<CTLineRef> makeTextLine(const TextRun& run) {
    NSString* text = nsString(run.text);
    if (text == nil) return nullptr;
    const CFOwned<CGColorRef> color(
        CGColorCreateSRGB(run.color.red, run.color.green, run.color.blue, run.color.alpha));
    NSDictionary* attributes = @{
        (__bridge NSString*)kCTFontAttributeName : nsFont(run.font),
        (__bridge NSString*)kCTForegroundColorAttributeName : (__bridge id)color.get(),
        (__bridge NSString*)kCTKernAttributeName : @(run.kern),
    };
    NSAttributedString* string = [[NSAttributedString alloc] initWithString:text
                                                                 attributes:attributes];
    return CFOwned<CTLineRef>(
        CTLineCreateWithAttributedString((__bridge CFAttributedStringRef)string));
}

TextMetrics MacTextMeasurer::measure(const TextRun& run) {
    const CFOwned<CTLineRef> line = makeTextLine(run);
    if (!line) return {};
    CGFloat ascent = 0;
    CGFloat descent = 0;
    CGFloat leading = 0;
    const double width = CTLineGetTypographicBounds(line.get(), &ascent, &descent, &leading);
    return {width, ascent, descent};
}

}  // namespace vistrel
