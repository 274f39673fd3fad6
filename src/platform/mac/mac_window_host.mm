#include "platform/mac/mac_window_host.h"

#import <AppKit/AppKit.h>

#include "platform/mac/display_list_view.h"

namespace vistrel {

namespace {

NSRect nsRect(Rect rect) {
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

Rect rectOf(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

// A stretchable black rounded rectangle: the visual-effect view shows its material only
// where the mask is opaque.
NSImage* roundedMask(double radius) {
    const CGFloat edge = 2 * radius + 1;
    NSImage* mask = [NSImage imageWithSize:NSMakeSize(edge, edge)
                                   flipped:NO
                            drawingHandler:^BOOL(NSRect rect) {
                              [NSColor.blackColor setFill];
                              [[NSBezierPath bezierPathWithRoundedRect:rect
                                                               xRadius:radius
                                                               yRadius:radius] fill];
                              return YES;
                            }];
    mask.capInsets = NSEdgeInsetsMake(radius, radius, radius, radius);
    mask.resizingMode = NSImageResizingModeStretch;
    return mask;
}

// One NSWindow with its display-list view, kept alive by ARC for as long as this object.
class MacAgentWindow : public AgentWindow {
  public:
    explicit MacAgentWindow(WindowDeferral deferral) {
        window_ = [[NSWindow alloc] initWithContentRect:NSZeroRect
                                              styleMask:NSWindowStyleMaskBorderless
                                                backing:NSBackingStoreBuffered
                                                  defer:deferral == WindowDeferral::deferred];
        window_.releasedWhenClosed = NO;
        window_.opaque = NO;
        window_.backgroundColor = NSColor.clearColor;
        window_.hasShadow = NO;
        view_ = [[VistrelDisplayListView alloc] initWithFrame:NSZeroRect];
        window_.contentView = view_;
    }

    // A window whose owner lets go of it leaves the screen at once.
    ~MacAgentWindow() override {
        [window_ orderOut:nil];
        window_.contentView = nil;
    }

    MacAgentWindow(const MacAgentWindow&) = delete;
    MacAgentWindow& operator=(const MacAgentWindow&) = delete;

    void setFrame(Rect frame, bool display) override {
        [window_ setFrame:nsRect(frame) display:display ? YES : NO];
    }
    Rect frame() const override { return rectOf(window_.frame); }
    void setLevel(int level) override { window_.level = level; }
    void setCollectionBehavior(std::uint64_t behavior) override {
        window_.collectionBehavior = static_cast<NSWindowCollectionBehavior>(behavior);
    }
    void setIgnoresMouseEvents(bool ignores) override {
        window_.ignoresMouseEvents = ignores ? YES : NO;
    }
    // A plain set would leave a fade in flight running on to its end; setting the value
    // through the animator with no duration stops it.
    void setAlpha(double alpha) override {
        NSWindow* window = window_;
        [NSAnimationContext
            runAnimationGroup:^(NSAnimationContext* context) {
              context.duration = 0;
              window.animator.alphaValue = alpha;
            }
            completionHandler:nil];
        window.alphaValue = alpha;
    }
    double alpha() const override { return window_.alphaValue; }

    void fade(double alpha, double seconds, std::function<void()> done) override {
        NSWindow* window = window_;
        [NSAnimationContext
            runAnimationGroup:^(NSAnimationContext* context) {
              context.duration = seconds;
              window.animator.alphaValue = alpha;
            }
            completionHandler:^{
              if (done) done();
            }];
    }

    void setContent(std::shared_ptr<const DisplayList> content) override {
        [view_ setDisplayList:std::move(content)];
    }
    void orderFrontRegardless() override { [window_ orderFrontRegardless]; }
    void orderOut() override { [window_ orderOut:nil]; }
    bool isVisible() const override { return window_.visible == YES; }
    bool isOnActiveSpace() const override { return window_.onActiveSpace == YES; }

    // The glass becomes the content view and the drawing view sits on it, resizing with it.
    // Made once; a later call only changes the corner mask (the folded shelf is a capsule).
    void setGlass(double cornerRadius) override {
        if (glass_ == nil) {
            glass_ = [[NSVisualEffectView alloc] initWithFrame:NSZeroRect];
            glass_.material = NSVisualEffectMaterialHUDWindow;
            glass_.blendingMode = NSVisualEffectBlendingModeBehindWindow;
            glass_.state = NSVisualEffectStateActive;
            glass_.appearance = [NSAppearance appearanceNamed:NSAppearanceNameVibrantDark];
            [view_ removeFromSuperview];
            view_.frame = glass_.bounds;
            view_.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
            view_.wantsLayer = YES;
            [glass_ addSubview:view_];
            window_.contentView = glass_;
        }
        glass_.maskImage = roundedMask(cornerRadius);
    }

  private:
    NSWindow* window_;
    VistrelDisplayListView* view_;
    NSVisualEffectView* glass_ = nil;
};

}  // namespace

std::unique_ptr<AgentWindow> MacWindowHost::makeWindow(WindowDeferral deferral) {
    return std::make_unique<MacAgentWindow>(deferral);
}

}  // namespace vistrel
