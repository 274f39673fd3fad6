#pragma once

#include <AppKit/NSApplication.h>
#include <AppKit/NSMenu.h>

@interface NSApplication (VistrelMenu)
@property(nullable, strong) NSMenu* mainMenu;
- (void)hide:(nullable id)sender;
@end
