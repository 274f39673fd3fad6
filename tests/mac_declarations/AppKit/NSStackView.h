#pragma once

#include <AppKit/NSLayoutConstraint.h>
#include <AppKit/NSView.h>
#include <Foundation/NSArray.h>

VISTREL_ENUM(NSInteger, NSUserInterfaceLayoutOrientation){
    NSUserInterfaceLayoutOrientationHorizontal = 0,
    NSUserInterfaceLayoutOrientationVertical = 1,
};

VISTREL_MACOS(10.9)
@interface NSStackView : NSView
+ (instancetype)stackViewWithViews:(NSArray<NSView*>*)views;
@property NSUserInterfaceLayoutOrientation orientation;
@property NSLayoutAttribute alignment;
@property CGFloat spacing;
@property NSEdgeInsets edgeInsets;
- (void)addArrangedSubview:(NSView*)view VISTREL_MACOS(10.11);
- (void)setCustomSpacing:(CGFloat)spacing afterView:(NSView*)view;
@end
