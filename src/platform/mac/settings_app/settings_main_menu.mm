#include "platform/mac/settings_app/settings_main_menu.h"

#include "platform/mac/mac_block_target.h"

namespace {

NSMenuItem* item(NSString* title, SEL action, NSString* key) {
    return [[NSMenuItem alloc] initWithTitle:title action:action keyEquivalent:key];
}

// A menu-bar entry holding `submenu`.
NSMenuItem* entry(NSMenu* submenu) {
    NSMenuItem* holder = item(submenu.title, nil, @"");
    holder.submenu = submenu;
    return holder;
}

NSMenu* applicationMenu(void (^about)(void), NSMutableArray* targets) {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@"Vistrel Settings"];
    VistrelBlockTarget* target = [[VistrelBlockTarget alloc] initWithHandler:about];
    [targets addObject:target];
    NSMenuItem* aboutItem = item(@"About Vistrel Settings", @selector(run:), @"");
    aboutItem.target = target;
    [menu addItem:aboutItem];
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItem:item(@"Hide Vistrel Settings", @selector(hide:), @"h")];
    [menu addItem:[NSMenuItem separatorItem]];
    [menu addItem:item(@"Quit Vistrel Settings", @selector(terminate:), @"q")];
    return menu;
}

// Sent to the first responder: the name being edited.
NSMenu* editMenu() {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@"Edit"];
    [menu addItem:item(@"Cut", @selector(cut:), @"x")];
    [menu addItem:item(@"Copy", @selector(copy:), @"c")];
    [menu addItem:item(@"Paste", @selector(paste:), @"v")];
    [menu addItem:item(@"Select All", @selector(selectAll:), @"a")];
    return menu;
}

NSMenu* windowMenu() {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@"Window"];
    [menu addItem:item(@"Minimize", @selector(performMiniaturize:), @"m")];
    [menu addItem:item(@"Close", @selector(performClose:), @"w")];
    return menu;
}

}  // namespace

namespace vistrel {

NSMenu* makeSettingsMainMenu(void (^about)(void), NSMutableArray* targets) {
    NSMenu* bar = [[NSMenu alloc] initWithTitle:@""];
    [bar addItem:entry(applicationMenu(about, targets))];
    [bar addItem:entry(editMenu())];
    [bar addItem:entry(windowMenu())];
    return bar;
}

}  // namespace vistrel
