#pragma once

#include <AppKit/NSModalResponse.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSString.h>

@class NSButton;

// The buttons' answers from -runModal, in the order they were added.
static const NSModalResponse NSAlertFirstButtonReturn = 1000;
static const NSModalResponse NSAlertSecondButtonReturn = 1001;
static const NSModalResponse NSAlertThirdButtonReturn = 1002;

@interface NSAlert : NSObject
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
// The first button added is the default (Return); one titled "Cancel" answers Escape.
- (NSButton*)addButtonWithTitle:(NSString*)title;
@property(readonly, copy) NSArray<NSButton*>* buttons;
@property(nullable, strong) NSView* accessoryView;
// A check box under the text; its title and state are the suppression button's.
@property BOOL showsSuppressionButton VISTREL_MACOS(10.5);
@property(nullable, readonly, strong) NSButton* suppressionButton VISTREL_MACOS(10.5);
// Lays the alert out now, so its window can be adjusted before it runs.
- (void)layout;
@property(readonly, strong) NSWindow* window;
- (NSModalResponse)runModal;
@end
