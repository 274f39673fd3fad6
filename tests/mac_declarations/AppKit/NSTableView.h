#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSView.h>
#include <Foundation/NSIndexSet.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSString.h>

typedef NSString* NSUserInterfaceItemIdentifier;

VISTREL_ENUM(NSInteger, NSTableViewStyle){
    NSTableViewStyleInset = 2,
    NSTableViewStyleSourceList = 3,
};

@class NSTableView;

@interface NSTableHeaderView : NSView
@end

@interface NSTableColumn : NSObject
- (instancetype)initWithIdentifier:(NSUserInterfaceItemIdentifier)identifier;
@property(copy) NSUserInterfaceItemIdentifier identifier;
@property(copy) NSString* title;
@property CGFloat width;
@end

@protocol NSTableViewDataSource <NSObject>
@optional
- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView;
@end

@protocol NSTableViewDelegate <NSObject>
@optional
// The cell of a view-based table; nil leaves the cell empty.
- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row VISTREL_MACOS(10.7);
- (void)tableViewSelectionDidChange:(NSNotification*)notification;
@end

@interface NSTableView : NSControl
- (void)addTableColumn:(NSTableColumn*)tableColumn;
@property(nullable, weak) id<NSTableViewDataSource> dataSource;
@property(nullable, weak) id<NSTableViewDelegate> delegate;
@property(nullable, strong) NSTableHeaderView* headerView;
@property NSTableViewStyle style VISTREL_MACOS(11.0);
@property CGFloat rowHeight;
// -1 when no row is selected.
@property(readonly) NSInteger selectedRow;
- (void)selectRowIndexes:(NSIndexSet*)indexes byExtendingSelection:(BOOL)extend VISTREL_MACOS(10.3);
- (void)deselectAll:(nullable id)sender;
- (void)reloadData;
@end
