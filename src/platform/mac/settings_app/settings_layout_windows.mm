#include "platform/mac/settings_app/settings_layout_windows.h"

#include <optional>
#include <vector>

#include "platform/mac/mac_block_target.h"
#include "platform/mac/mac_strings.h"
#include "settings_app/layout_windows_painter.h"

namespace {

constexpr CGFloat rowSpacing = 4;
constexpr CGFloat columnSpacing = 12;
// The applications' names stand in a column so the documents and titles line up.
constexpr CGFloat appColumnWidth = 140;
// The title is the list's own heading, in the body's size and a heavier weight.
constexpr CGFloat titleFontSize = 13;

}  // namespace

@implementation VistrelSettingsLayoutWindows {
    vistrel::SettingsModel* model_;
    std::optional<vistrel::UUID> shownLayout_;
    std::vector<vistrel::LayoutWindowRow> shownWindows_;
    NSTextField* title_;
    NSMutableArray<NSView*>* lines_;
    NSMutableArray<VistrelBlockTarget*>* targets_;
}

- (instancetype)initWithModel:(vistrel::SettingsModel&)model {
    if (!(self = [super initWithFrame:NSZeroRect])) return nil;
    model_ = &model;
    targets_ = [NSMutableArray arrayWithCapacity:1];
    lines_ = [NSMutableArray arrayWithCapacity:8];
    self.orientation = NSUserInterfaceLayoutOrientationVertical;
    self.alignment = NSLayoutAttributeLeading;
    self.spacing = rowSpacing;
    self.translatesAutoresizingMaskIntoConstraints = NO;
    title_ = [NSTextField labelWithString:@""];
    title_.font = [NSFont systemFontOfSize:titleFontSize weight:NSFontWeightSemibold];
    __weak VistrelSettingsLayoutWindows* weakSelf = self;
    NSButton* copy = vistrel::makeBlockButton(
        vistrel::nsString(std::string(vistrel::LayoutWindowsPainter::copyTitle)), targets_, ^{
          VistrelSettingsLayoutWindows* strongSelf = weakSelf;
          if (strongSelf != nil) strongSelf->model_->copyLayoutURL();
        });
    NSStackView* header = [NSStackView stackViewWithViews:@[ title_, copy ]];
    header.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    header.spacing = columnSpacing;
    [self addArrangedSubview:header];
    [self refresh];
    return self;
}

- (void)refresh {
    const std::optional<vistrel::UUID> chosen = model_->selectedLayout();
    self.hidden = !chosen;
    if (!chosen) return;
    for (const vistrel::LayoutRow& layout : model_->layouts()) {
        if (layout.id == *chosen)
            title_.stringValue =
                vistrel::nsString(vistrel::LayoutWindowsPainter::heading(layout.name));
    }
    std::vector<vistrel::LayoutWindowRow> windows = model_->selectedLayoutWindows();
    // The lines are made again only for another layout or other windows.
    if (chosen == shownLayout_ && windows == shownWindows_) return;
    shownLayout_ = chosen;
    shownWindows_ = std::move(windows);
    // A view taken from a stack view's subviews leaves its arranged views too; the header
    // stays.
    for (NSView* line in lines_)
        [line removeFromSuperview];
    [lines_ removeAllObjects];
    if (shownWindows_.empty()) {
        NSTextField* none = [NSTextField
            labelWithString:vistrel::nsString(
                                std::string(vistrel::LayoutWindowsPainter::noWindows))];
        none.textColor = NSColor.secondaryLabelColor;
        [lines_ addObject:none];
    }
    for (const vistrel::LayoutWindowRow& window : shownWindows_)
        [lines_ addObject:[self lineFor:window]];
    for (NSView* line in lines_)
        [self addArrangedSubview:line];
}

// The application, then the document's name (its path as the tool tip) or the title.
- (NSView*)lineFor:(const vistrel::LayoutWindowRow&)window {
    NSTextField* app = [NSTextField labelWithString:vistrel::nsString(window.app)];
    NSTextField* detail = [NSTextField labelWithString:vistrel::nsString(window.detail)];
    detail.textColor = NSColor.secondaryLabelColor;
    if (!window.path.empty()) detail.toolTip = vistrel::nsString(window.path);
    NSStackView* line = [NSStackView stackViewWithViews:@[ app, detail ]];
    line.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    line.spacing = columnSpacing;
    [app.widthAnchor constraintEqualToConstant:appColumnWidth].active = YES;
    return line;
}

@end
