#include "platform/mac/settings_app/settings_sidebar.h"

#include "platform/mac/mac_strings.h"

namespace {

constexpr CGFloat rowHeight = 28;
constexpr CGFloat symbolToTitle = 6;
NSString* const pageColumn = @"page";

}  // namespace

@implementation VistrelSettingsSidebar {
    vistrel::SettingsModel* model_;
    NSTableView* table_;
    // Set while the selection is being matched to the model, so it is not sent back.
    bool showing_;
}

- (instancetype)initWithModel:(vistrel::SettingsModel&)model {
    if (!(self = [super initWithFrame:NSZeroRect])) return nil;
    model_ = &model;
    table_ = [[NSTableView alloc] initWithFrame:NSZeroRect];
    [table_ addTableColumn:[[NSTableColumn alloc] initWithIdentifier:pageColumn]];
    table_.headerView = nil;
    table_.style = NSTableViewStyleSourceList;
    table_.rowHeight = rowHeight;
    table_.dataSource = self;
    table_.delegate = self;
    table_.accessibilityLabel = @"Settings pages";
    self.documentView = table_;
    self.drawsBackground = NO;
    [self showSelection];
    return self;
}

- (void)showSelection {
    const auto& pages = model_->pages();
    for (std::size_t index = 0; index < pages.size(); ++index) {
        if (pages[index].id != model_->selectedPage()) continue;
        showing_ = true;
        [table_ selectRowIndexes:[NSIndexSet indexSetWithIndex:index] byExtendingSelection:NO];
        showing_ = false;
    }
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    (void)tableView;
    return static_cast<NSInteger>(model_->pages().size());
}

- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row {
    (void)tableView;
    (void)tableColumn;
    if (row < 0 || row >= static_cast<NSInteger>(model_->pages().size())) return nil;
    const vistrel::Page& page = model_->pages()[static_cast<std::size_t>(row)];
    NSImageView* symbol = [NSImageView
        imageViewWithImage:[NSImage imageWithSystemSymbolName:vistrel::nsString(page.symbol)
                                     accessibilityDescription:nil]];
    NSTextField* title = [NSTextField labelWithString:vistrel::nsString(page.title)];
    NSStackView* line = [NSStackView stackViewWithViews:@[ symbol, title ]];
    line.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    line.spacing = symbolToTitle;
    return line;
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification {
    (void)notification;
    const NSInteger row = table_.selectedRow;
    if (showing_ || row < 0 || row >= static_cast<NSInteger>(model_->pages().size())) return;
    model_->selectPage(model_->pages()[static_cast<std::size_t>(row)].id);
}

@end
