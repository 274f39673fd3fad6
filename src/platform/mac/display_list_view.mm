#include "platform/mac/display_list_view.h"
#include "platform/mac/mac_text.h"

#import <CoreText/CoreText.h>

#include "platform/mac/cf_owned.h"

namespace vistrel {

namespace {

CGLineCap cgCap(LineCap cap) {
    switch (cap) {
        case LineCap::butt:
            return kCGLineCapButt;
        case LineCap::round:
            return kCGLineCapRound;
        case LineCap::square:
            return kCGLineCapSquare;
    }
    return kCGLineCapButt;
}

CGLineJoin cgJoin(LineJoin join) {
    switch (join) {
        case LineJoin::miter:
            return kCGLineJoinMiter;
        case LineJoin::round:
            return kCGLineJoinRound;
        case LineJoin::bevel:
            return kCGLineJoinBevel;
    }
    return kCGLineJoinMiter;
}

CFOwned<CGColorRef> cgColor(Color color) {
    return CFOwned<CGColorRef>(CGColorCreateSRGB(color.red, color.green, color.blue, color.alpha));
}

// Replays canvas calls into a Core Graphics context.
class CoreGraphicsCanvas : public Canvas {
  public:
    CoreGraphicsCanvas(CGContextRef context, bool flipped) : cg_(context), flipped_(flipped) {}

    void fill(const Path& path, Color color) override {
        setPath(path);
        CGContextSetFillColorWithColor(cg_, cgColor(color).get());
        CGContextFillPath(cg_);
    }

    void stroke(const Path& path, Color color, const StrokeStyle& style) override {
        setPath(path);
        CGContextSetStrokeColorWithColor(cg_, cgColor(color).get());
        CGContextSetLineWidth(cg_, style.width);
        CGContextSetLineCap(cg_, cgCap(style.cap));
        CGContextSetLineJoin(cg_, cgJoin(style.join));
        CGContextStrokePath(cg_);
    }

    void clip(const Path& path) override {
        setPath(path);
        CGContextClip(cg_);
    }

    void save() override { CGContextSaveGState(cg_); }
    void restore() override { CGContextRestoreGState(cg_); }
    void translate(double dx, double dy) override { CGContextTranslateCTM(cg_, dx, dy); }
    void scale(double sx, double sy) override { CGContextScaleCTM(cg_, sx, sy); }

    void drawText(const TextRun& run, Point baseline) override {
        if (run.text.empty()) return;
        const CFOwned<CTLineRef> line = makeTextLine(run);
        if (!line) return;  // not UTF-8
        CGContextSaveGState(cg_);
        // Glyphs are drawn y-up; in a flipped view the text matrix turns them upright.
        CGContextSetTextMatrix(
            cg_, flipped_ ? CGAffineTransformMakeScale(1, -1) : CGAffineTransformIdentity);
        CGContextSetTextPosition(cg_, baseline.x, baseline.y);
        CTLineDraw(line.get(), cg_);
        CGContextRestoreGState(cg_);
    }

    void drawImage(const std::shared_ptr<const Image>& image, Rect rect) override {
        if (!image || !image->isValid() || rect.isEmpty()) return;
        const auto picture = cgImage(*image);
        if (!picture) return;
        CGContextSaveGState(cg_);
        // Core Graphics draws an image's first row at the rectangle's maximum y; a flipped
        // view needs it at the minimum.
        if (flipped_) {
            CGContextTranslateCTM(cg_, rect.minX(), rect.maxY());
            CGContextScaleCTM(cg_, 1, -1);
            rect = {0, 0, rect.width, rect.height};
        }
        CGContextDrawImage(cg_, CGRectMake(rect.x, rect.y, rect.width, rect.height), picture.get());
        CGContextRestoreGState(cg_);
    }

  private:
    void setPath(const Path& path) {
        CGContextBeginPath(cg_);
        for (const Path::Element& e : path.elements()) {
            const auto& p = e.points;
            switch (e.verb) {
                case Path::Verb::move:
                    CGContextMoveToPoint(cg_, p[0].x, p[0].y);
                    break;
                case Path::Verb::line:
                    CGContextAddLineToPoint(cg_, p[0].x, p[0].y);
                    break;
                case Path::Verb::curve:
                    CGContextAddCurveToPoint(cg_, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                    break;
                case Path::Verb::close:
                    CGContextClosePath(cg_);
                    break;
            }
        }
    }

    // The bitmap as an sRGB image with straight (not premultiplied) alpha last.
    static CFOwned<CGImageRef> cgImage(const Image& image) {
        constexpr size_t bitsPerComponent = 8;
        constexpr size_t bytesPerPixel = 4;
        CFOwned<CFDataRef> data(
            CFDataCreate(nullptr, image.rgba.data(), static_cast<CFIndex>(image.rgba.size())));
        CFOwned<CGDataProviderRef> provider(CGDataProviderCreateWithCFData(data.get()));
        CFOwned<CGColorSpaceRef> sRGB(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
        const auto width = static_cast<size_t>(image.width);
        // Default byte order (0) and straight alpha after the colour components.
        const auto bitmapInfo = static_cast<CGBitmapInfo>(kCGImageAlphaLast);
        return CFOwned<CGImageRef>(
            CGImageCreate(width, static_cast<size_t>(image.height), bitsPerComponent,
                          bitsPerComponent * bytesPerPixel, width * bytesPerPixel, sRGB.get(),
                          bitmapInfo, provider.get(), nullptr, true, kCGRenderingIntentDefault));
    }

    CGContextRef cg_;
    bool flipped_;
};

}  // namespace

void drawDisplayListInCurrentContext(const DisplayList& list) {
    CGContextRef context = NSGraphicsContext.currentContext.CGContext;
    if (context == nullptr) return;
    CoreGraphicsCanvas canvas(context, list.flipped());
    list.replay(canvas);
}

}  // namespace vistrel

@implementation VistrelDisplayListView {
    std::shared_ptr<const vistrel::DisplayList> _displayList;
}

- (void)setDisplayList:(std::shared_ptr<const vistrel::DisplayList>)displayList {
    _displayList = std::move(displayList);
    self.needsDisplay = YES;
}

- (BOOL)isFlipped {
    return _displayList != nullptr && _displayList->flipped();
}

- (BOOL)isOpaque {
    return NO;
}

- (NSView*)hitTest:(NSPoint)point {
    (void)point;
    return nil;
}

- (void)drawRect:(NSRect)dirtyRect {
    CGContextRef context = NSGraphicsContext.currentContext.CGContext;
    if (context == nullptr) return;
    CGContextClearRect(context, dirtyRect);
    if (!_displayList) return;
    vistrel::CoreGraphicsCanvas canvas(context, self.isFlipped);
    _displayList->replay(canvas);
}

@end
