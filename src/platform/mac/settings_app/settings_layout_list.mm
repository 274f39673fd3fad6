#include "platform/mac/settings_app/settings_layout_list.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/mac/mac_block_target.h"
#include "platform/mac/mac_strings.h"
#include "platform/mac/settings_app/settings_layout_windows.h"
#include "platform/platform.h"

namespace {

constexpr CGFloat tableHeight = 170;
constexpr CGFloat detailWidth = 110;
constexpr std::size_t deleteButton = 0;

NSString* const nameColumn = @"name";
NSString* const detailColumn = @"detail";

}  // namespace

@implementation VistrelSettingsLayoutList {
    vistrel::SettingsModel* model_;
    std::string controlId_;
    std::vector<vistrel::LayoutRow> rows_;
    NSTableView* table_;
    VistrelSettingsLayoutWindows* windows_;
    NSTextField* message_;
    NSArray<NSButton*>* selectionButtons_;
    NSMutableArray<VistrelBlockTarget*>* targets_;
}

- (instancetype)initWithModel:(vistrel::SettingsModel&)model
                    controlId:(const std::string&)controlId {
    if (!(self = [super initWithFrame:NSZeroRect])) return nil;
    model_ = &model;
    controlId_ = controlId;
    targets_ = [NSMutableArray arrayWithCapacity:8];
    self.translatesAutoresizingMaskIntoConstraints = NO;
    NSStackView* column = [[NSStackView alloc] initWithFrame:NSZeroRect];
    column.orientation = NSUserInterfaceLayoutOrientationVertical;
    column.alignment = NSLayoutAttributeLeading;
    column.spacing = 8;
    column.translatesAutoresizingMaskIntoConstraints = NO;
    [self addSubview:column];
    NSScrollView* scroll = [self makeTable];
    [column addArrangedSubview:scroll];
    [column addArrangedSubview:[self makeButtons]];
    windows_ = [[VistrelSettingsLayoutWindows alloc] initWithModel:model];
    [column addArrangedSubview:windows_];
    message_ = [NSTextField wrappingLabelWithString:@""];
    message_.textColor = NSColor.secondaryLabelColor;
    [column addArrangedSubview:message_];
    [NSLayoutConstraint activateConstraints:@[
        [column.topAnchor constraintEqualToAnchor:self.topAnchor],
        [column.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
        [column.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
        [column.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
        [scroll.widthAnchor constraintEqualToAnchor:column.widthAnchor],
        [scroll.heightAnchor constraintEqualToConstant:tableHeight],
        [windows_.widthAnchor constraintEqualToAnchor:column.widthAnchor],
    ]];
    [self refresh];
    return self;
}

- (NSScrollView*)makeTable {
    table_ = [[NSTableView alloc] initWithFrame:NSZeroRect];
    NSTableColumn* name = [[NSTableColumn alloc] initWithIdentifier:nameColumn];
    name.title = @"Name";
    NSTableColumn* detail = [[NSTableColumn alloc] initWithIdentifier:detailColumn];
    detail.title = @"Windows";
    detail.width = detailWidth;
    [table_ addTableColumn:name];
    [table_ addTableColumn:detail];
    table_.style = NSTableViewStyleInset;
    table_.dataSource = self;
    table_.delegate = self;
    table_.accessibilityLabel = @"Saved layouts";
    NSScrollView* scroll = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    scroll.documentView = table_;
    scroll.hasVerticalScroller = YES;
    scroll.borderType = NSBezelBorder;
    scroll.translatesAutoresizingMaskIntoConstraints = NO;
    return scroll;
}

- (NSView*)makeButtons {
    // The buttons' targets live with this view: holding it strongly would keep it forever.
    __weak VistrelSettingsLayoutList* weakSelf = self;
    NSButton* remove = vistrel::makeBlockButton(@"Delete…", targets_, ^{
      [weakSelf deleteSelected];
    });
    NSButton* up = vistrel::makeBlockButton(@"Move Up", targets_, ^{
      [weakSelf moveSelectedBy:-1];
    });
    NSButton* down = vistrel::makeBlockButton(@"Move Down", targets_, ^{
      [weakSelf moveSelectedBy:1];
    });
    NSButton* import = vistrel::makeBlockButton(@"Import…", targets_, ^{
      [weakSelf importLayouts];
    });
    NSButton* exportButton = vistrel::makeBlockButton(@"Export…", targets_, ^{
      [weakSelf exportLayouts];
    });
    selectionButtons_ = @[ remove, up, down ];
    NSStackView* line =
        [NSStackView stackViewWithViews:@[ remove, up, down, import, exportButton ]];
    line.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    line.spacing = 8;
    [line setCustomSpacing:24 afterView:down];
    return line;
}

- (void)refresh {
    std::vector<vistrel::LayoutRow> rows = model_->layouts();
    if (rows != rows_) {
        rows_ = std::move(rows);
        [table_ reloadData];
        [self showChosenRow];
    }
    [windows_ refresh];
    message_.stringValue = vistrel::nsString(model_->layoutsMessage());
    message_.textColor =
        model_->layoutsMessageIsWarning() ? NSColor.systemOrangeColor : NSColor.secondaryLabelColor;
    const bool enabled = model_->isEnabled(controlId_);
    table_.enabled = enabled;
    [self updateButtons];
}

// The table's selection follows the layout the model has chosen, wherever the reload put it.
- (void)showChosenRow {
    const std::optional<vistrel::UUID> chosen = model_->selectedLayout();
    const auto found = std::ranges::find(rows_, chosen, &vistrel::LayoutRow::id);
    if (!chosen || found == rows_.end()) {
        [table_ deselectAll:nil];
        return;
    }
    const auto row = static_cast<NSUInteger>(found - rows_.begin());
    [table_ selectRowIndexes:[NSIndexSet indexSetWithIndex:row] byExtendingSelection:NO];
}

- (void)updateButtons {
    const NSInteger selected = table_.selectedRow;
    const bool usable = model_->isEnabled(controlId_);
    const NSInteger count = static_cast<NSInteger>(rows_.size());
    selectionButtons_[0].enabled = usable && selected >= 0;
    selectionButtons_[1].enabled = usable && selected > 0;
    selectionButtons_[2].enabled = usable && selected >= 0 && selected + 1 < count;
}

// Asks before deleting: a layout deleted by a slip of the hand cannot be brought back.
- (void)deleteSelected {
    const NSInteger selected = table_.selectedRow;
    if (selected < 0 || selected >= static_cast<NSInteger>(rows_.size())) return;
    const vistrel::LayoutRow row = rows_[static_cast<std::size_t>(selected)];
    const std::optional<std::size_t> answer =
        vistrel::platform().alert.run({"Delete “" + row.name + "”?",
                                       "The layout cannot be restored after it is deleted.",
                                       {"Delete", "Cancel"}});
    // Only the Delete button deletes: Cancel, Escape and an aborted alert keep the layout.
    if (answer != deleteButton) return;
    model_->deleteLayout(row.id);
}

- (void)moveSelectedBy:(NSInteger)offset {
    const NSInteger selected = table_.selectedRow;
    const NSInteger target = selected + offset;
    if (selected < 0 || target < 0 || target >= static_cast<NSInteger>(rows_.size())) return;
    model_->moveLayout(static_cast<std::size_t>(selected), static_cast<std::size_t>(target));
    [table_ selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(target)]
        byExtendingSelection:NO];
}

- (void)importLayouts {
    NSOpenPanel* panel = [NSOpenPanel openPanel];
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    panel.allowsMultipleSelection = NO;
    if ([panel runModal] != NSModalResponseOK || panel.URL.path == nil) return;
    model_->importLayouts(vistrel::utf8(panel.URL.path));
}

- (void)exportLayouts {
    const auto place =
        vistrel::platform().savePanel.run(std::string(vistrel::SettingsModel::exportFileName));
    if (place) model_->exportLayouts(*place);
}

// A name edited in place; a refused name (empty) shows the old one again.
- (void)renamed:(NSTextField*)field {
    const NSInteger row = field.tag;
    if (row < 0 || row >= static_cast<NSInteger>(rows_.size())) return;
    if (!model_->renameLayout(rows_[static_cast<std::size_t>(row)].id,
                              vistrel::utf8(field.stringValue)))
        field.stringValue = vistrel::nsString(rows_[static_cast<std::size_t>(row)].name);
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    (void)tableView;
    return static_cast<NSInteger>(rows_.size());
}

- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row {
    (void)tableView;
    if (row < 0 || row >= static_cast<NSInteger>(rows_.size())) return nil;
    const vistrel::LayoutRow& layout = rows_[static_cast<std::size_t>(row)];
    if ([tableColumn.identifier isEqualToString:detailColumn]) {
        NSTextField* detail = [NSTextField labelWithString:vistrel::nsString(layout.detail)];
        detail.textColor = NSColor.secondaryLabelColor;
        return detail;
    }
    NSTextField* name = [NSTextField textFieldWithString:vistrel::nsString(layout.name)];
    name.bordered = NO;
    name.drawsBackground = NO;
    name.tag = row;
    name.target = self;
    name.action = @selector(renamed:);
    return name;
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification {
    (void)notification;
    [self updateButtons];
    const NSInteger selected = table_.selectedRow;
    std::optional<vistrel::UUID> chosen;
    if (selected >= 0 && selected < static_cast<NSInteger>(rows_.size()))
        chosen = rows_[static_cast<std::size_t>(selected)].id;
    // Told only of a change: the model's observers refresh this list, which sets the row again.
    if (chosen != model_->selectedLayout()) model_->selectLayout(chosen);
}

@end
