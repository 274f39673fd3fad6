#include "platform/mac/settings_app/settings_window.h"

#include <cstdint>

#include "platform/mac/mac_block_target.h"
#include "platform/mac/mac_strings.h"
#include "platform/mac/settings_app/settings_page_view.h"
#include "platform/mac/settings_app/settings_sidebar.h"

namespace {

constexpr NSSize windowSize = {780, 560};
constexpr CGFloat sidebarWidth = 190;
constexpr CGFloat barInset = 16;
// Sidebar pages and welcome steps are told apart by the key of what shows.
constexpr std::int64_t welcomeKeyBase = 1000;

}  // namespace

// A clip view whose origin is its top-left corner, so that a page shorter than the window
// sits at the top instead of sinking to the bottom of the scroll view.
@interface VistrelFlippedClipView : NSClipView
@end

@implementation VistrelFlippedClipView
- (BOOL)isFlipped {
    return YES;
}
@end

@implementation VistrelSettingsWindow {
    vistrel::SettingsModel* model_;
    NSWindow* window_;
    VistrelSettingsSidebar* sidebar_;
    NSSplitViewItem* sidebarItem_;
    NSScrollView* scroll_;
    VistrelSettingsPageView* page_;
    NSStackView* bar_;
    NSButton* back_;
    NSButton* continue_;
    NSMutableArray<VistrelBlockTarget*>* targets_;
    std::int64_t shownKey_;
    std::uint64_t observation_;
}

- (instancetype)initWithModel:(vistrel::SettingsModel&)model {
    if (!(self = [super init])) return nil;
    model_ = &model;
    targets_ = [NSMutableArray arrayWithCapacity:2];
    shownKey_ = -1;
    const NSWindowStyleMask style = NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                    NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable |
                                    NSWindowStyleMaskFullSizeContentView;
    window_ =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, windowSize.width, windowSize.height)
                                    styleMask:style
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    window_.title = vistrel::nsString(std::string(vistrel::SettingsModel::appName));
    window_.releasedWhenClosed = NO;
    window_.delegate = self;
    window_.contentViewController = [self makeSplit];
    [window_ setContentSize:windowSize];
    window_.contentMinSize = windowSize;
    [window_ center];
    __weak VistrelSettingsWindow* weakSelf = self;
    observation_ = model.observe([weakSelf] { [weakSelf modelChanged]; });
    return self;
}

- (NSSplitViewController*)makeSplit {
    sidebar_ = [[VistrelSettingsSidebar alloc] initWithModel:*model_];
    NSViewController* sidebarController = [[NSViewController alloc] init];
    sidebarController.view = sidebar_;
    sidebarItem_ = [NSSplitViewItem sidebarWithViewController:sidebarController];
    sidebarItem_.minimumThickness = sidebarWidth;
    sidebarItem_.canCollapse = NO;

    scroll_ = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    scroll_.contentView = [[VistrelFlippedClipView alloc] initWithFrame:NSZeroRect];
    scroll_.hasVerticalScroller = YES;
    scroll_.drawsBackground = NO;
    NSStackView* content = [NSStackView stackViewWithViews:@[ scroll_, [self makeBar] ]];
    content.orientation = NSUserInterfaceLayoutOrientationVertical;
    content.spacing = 0;
    NSViewController* contentController = [[NSViewController alloc] init];
    contentController.view = content;

    NSSplitViewController* split = [[NSSplitViewController alloc] init];
    [split addSplitViewItem:sidebarItem_];
    [split addSplitViewItem:[NSSplitViewItem splitViewItemWithViewController:contentController]];
    return split;
}

// Back and Continue, shown only in the welcome guide; Return continues.
- (NSView*)makeBar {
    vistrel::SettingsModel* model = model_;
    back_ = vistrel::makeBlockButton(@"Back", targets_, ^{
      model->goBack();
    });
    continue_ = vistrel::makeBlockButton(@"Continue", targets_, ^{
      model->goOn();
    });
    continue_.keyEquivalent = @"\r";
    NSView* gap = [[NSView alloc] initWithFrame:NSZeroRect];
    [gap setContentHuggingPriority:NSLayoutPriorityDefaultLow
                    forOrientation:NSLayoutConstraintOrientationHorizontal];
    bar_ = [NSStackView stackViewWithViews:@[ back_, gap, continue_ ]];
    bar_.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    bar_.edgeInsets = NSEdgeInsetsMake(barInset, barInset * 2, barInset, barInset * 2);
    return bar_;
}

- (void)show {
    [self modelChanged];
    [window_ makeKeyAndOrderFront:nil];
    model_->setVisible(true);
}

- (std::int64_t)keyOfWhatShows {
    if (model_->mode() == vistrel::SettingsModel::Mode::welcome)
        return welcomeKeyBase + static_cast<std::int64_t>(model_->welcomeStep());
    return static_cast<std::int64_t>(model_->selectedPage());
}

- (void)modelChanged {
    const std::int64_t key = [self keyOfWhatShows];
    if (key != shownKey_) {
        shownKey_ = key;
        [self showPage];
    } else {
        [page_ refresh];
    }
    const bool welcome = model_->mode() == vistrel::SettingsModel::Mode::welcome;
    sidebarItem_.collapsed = welcome;
    bar_.hidden = !welcome;
    back_.hidden = !model_->canGoBack();
    continue_.title = vistrel::nsString(model_->continueTitle());
    [sidebar_ showSelection];
}

- (void)showPage {
    page_ = [[VistrelSettingsPageView alloc] initWithPage:model_->currentPage() model:*model_];
    scroll_.documentView = page_;
    NSClipView* clip = scroll_.contentView;
    [page_.topAnchor constraintEqualToAnchor:clip.topAnchor].active = YES;
    [page_.leadingAnchor constraintEqualToAnchor:clip.leadingAnchor].active = YES;
    [page_.widthAnchor constraintEqualToAnchor:clip.widthAnchor].active = YES;
}

// A window in the Dock shows nothing, so the model stops reading the keys meanwhile.
- (void)windowDidMiniaturize:(NSNotification*)notification {
    (void)notification;
    model_->setVisible(false);
}

- (void)windowDidDeminiaturize:(NSNotification*)notification {
    (void)notification;
    model_->setVisible(true);
}

- (void)windowWillClose:(NSNotification*)notification {
    (void)notification;
    model_->setVisible(false);
    model_->stopObserving(observation_);
}

@end
