#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSGeometry.h>
#include <Foundation/NSString.h>

typedef NSString* NSDeviceDescriptionKey;

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
// The screen with the key window, or the one with the menu bar; nil without screens.
@property(class, readonly, nullable, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@property(readonly, copy) NSDictionary<NSDeviceDescriptionKey, id>* deviceDescription;
@property(readonly) CGFloat backingScaleFactor;
@end
