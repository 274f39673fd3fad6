#pragma once

#include <AppKit/NSSavePanel.h>

@interface NSOpenPanel : NSSavePanel
+ (NSOpenPanel*)openPanel;
@property BOOL canChooseFiles;
@property BOOL canChooseDirectories;
@property BOOL allowsMultipleSelection;
@end
