#include "platform/mac/mac_status_bar.h"
#include "platform/mac/mac_strings.h"

#import <AppKit/AppKit.h>

#include "platform/display_list.h"
#include "platform/mac/display_list_view.h"
#include "platform/mac/mac_block_target.h"

namespace vistrel {

namespace {

class MacStatusItem : public StatusItem {
  public:
    explicit MacStatusItem(NSStatusItem* item) : item_(item) {}
    ~MacStatusItem() override { [NSStatusBar.systemStatusBar removeStatusItem:item_]; }
    MacStatusItem(const MacStatusItem&) = delete;
    MacStatusItem& operator=(const MacStatusItem&) = delete;

    void setTemplateImage(std::shared_ptr<const DisplayList> image, Size size) override {
        NSImage* nsImage = [NSImage imageWithSize:NSMakeSize(size.width, size.height)
                                          flipped:YES
                                   drawingHandler:^BOOL(NSRect rect) {
                                     (void)rect;
                                     drawDisplayListInCurrentContext(*image);
                                     return YES;
                                   }];
        [nsImage setTemplate:YES];
        item_.button.image = nsImage;
    }

    void setAccessibilityLabel(const std::string& label) override {
        [item_.button setAccessibilityLabel:nsString(label)];
    }

    void setAction(std::function<void()> action) override {
        target_ = [[VistrelBlockTarget alloc] initWithHandler:^{
          if (action) action();
        }];
        item_.button.target = target_;
        item_.button.action = @selector(run:);
        [item_.button sendActionOn:NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown];
    }

    void setVisible(bool visible) override { item_.visible = visible ? YES : NO; }
    bool isVisible() const override { return item_.visible == YES; }
    void setHighlighted(bool highlighted) override {
        [item_.button highlight:highlighted ? YES : NO];
    }

    std::optional<Rect> buttonFrame() const override {
        NSStatusBarButton* button = item_.button;
        NSWindow* window = button.window;
        if (button == nil || window == nil) return std::nullopt;
        const NSRect onScreen = [window convertRectToScreen:[button convertRect:button.bounds
                                                                         toView:nil]];
        return Rect{onScreen.origin.x, onScreen.origin.y, onScreen.size.width,
                    onScreen.size.height};
    }

  private:
    NSStatusItem* item_;
    VistrelBlockTarget* target_ = nil;
};

}  // namespace

std::unique_ptr<StatusItem> MacStatusBar::makeSquareItem() {
    NSStatusItem* item =
        [NSStatusBar.systemStatusBar statusItemWithLength:NSSquareStatusItemLength];
    if (item == nil || item.button == nil) return nullptr;
    return std::make_unique<MacStatusItem>(item);
}

}  // namespace vistrel
