#include "platform/mac/mac_native_menus.h"
#include "platform/mac/mac_strings.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_block_target.h"
#include "platform/mac/mac_key_panel.h"

namespace vistrel {

namespace {

NSControlStateValue stateValue(MenuItemState state) {
    switch (state) {
        case MenuItemState::on:
            return NSControlStateValueOn;
        case MenuItemState::mixed:
            return NSControlStateValueMixed;
        case MenuItemState::off:
            break;
    }
    return NSControlStateValueOff;
}

}  // namespace

void MacNativeMenus::popUp(std::vector<NativeMenuItem> items, KeyPanel& panel, Point point) {
    auto* macPanel = dynamic_cast<MacKeyPanel*>(&panel);
    if (macPanel == nullptr) return;
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    // The targets live as long as the menu is tracked; menu items hold theirs weakly.
    NSMutableArray* targets = [NSMutableArray arrayWithCapacity:items.size()];
    for (NativeMenuItem& item : items) {
        if (item.separator) {
            [menu addItem:[NSMenuItem separatorItem]];
            continue;
        }
        std::function<void()> handler = std::move(item.handler);
        VistrelBlockTarget* target = [[VistrelBlockTarget alloc] initWithHandler:^{
          if (handler) handler();
        }];
        [targets addObject:target];
        NSMenuItem* menuItem = [[NSMenuItem alloc] initWithTitle:nsString(item.title)
                                                          action:@selector(run:)
                                                   keyEquivalent:@""];
        menuItem.target = target;
        menuItem.state = stateValue(item.state);
        if (!item.toolTip.empty()) menuItem.toolTip = nsString(item.toolTip);
        [menu addItem:menuItem];
    }
    [menu popUpMenuPositioningItem:nil
                        atLocation:NSPoint{point.x, point.y}
                            inView:macPanel->contentView()];
    (void)targets;
}

}  // namespace vistrel
