#pragma once

#include <AppKit/NSView.h>
#include <Foundation/NSArray.h>

typedef float NSLayoutPriority;
static const NSLayoutPriority NSLayoutPriorityRequired = 1000;
static const NSLayoutPriority NSLayoutPriorityDefaultHigh = 750;
static const NSLayoutPriority NSLayoutPriorityDefaultLow = 250;

VISTREL_ENUM(NSInteger, NSLayoutConstraintOrientation){
    NSLayoutConstraintOrientationHorizontal = 0,
    NSLayoutConstraintOrientationVertical = 1,
};

VISTREL_ENUM(NSInteger, NSLayoutAttribute){
    NSLayoutAttributeLeading = 5,
    NSLayoutAttributeCenterX = 9,
    NSLayoutAttributeCenterY = 10,
};

VISTREL_MACOS(10.7)
@interface NSLayoutConstraint : NSObject
+ (void)activateConstraints:(NSArray<NSLayoutConstraint*>*)constraints VISTREL_MACOS(10.10);
@property(getter=isActive) BOOL active VISTREL_MACOS(10.10);
@end

VISTREL_MACOS(10.11)
@interface NSLayoutAnchor<AnchorType> : NSObject
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor;
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor<AnchorType>*)anchor
                                      constant:(CGFloat)c;
@end

@class NSLayoutXAxisAnchor;
@class NSLayoutYAxisAnchor;
@class NSLayoutDimension;

VISTREL_MACOS(10.11)
@interface NSLayoutXAxisAnchor : NSLayoutAnchor <NSLayoutXAxisAnchor*>
@end

VISTREL_MACOS(10.11)
@interface NSLayoutYAxisAnchor : NSLayoutAnchor <NSLayoutYAxisAnchor*>
@end

VISTREL_MACOS(10.11)
@interface NSLayoutDimension : NSLayoutAnchor <NSLayoutDimension*>
- (NSLayoutConstraint*)constraintEqualToConstant:(CGFloat)c;
- (NSLayoutConstraint*)constraintGreaterThanOrEqualToConstant:(CGFloat)c;
@end

@interface NSView (VistrelLayout)
@property BOOL translatesAutoresizingMaskIntoConstraints VISTREL_MACOS(10.7);
@property(readonly, strong) NSLayoutXAxisAnchor* leadingAnchor VISTREL_MACOS(10.11);
@property(readonly, strong) NSLayoutXAxisAnchor* trailingAnchor VISTREL_MACOS(10.11);
@property(readonly, strong) NSLayoutYAxisAnchor* topAnchor VISTREL_MACOS(10.11);
@property(readonly, strong) NSLayoutYAxisAnchor* bottomAnchor VISTREL_MACOS(10.11);
@property(readonly, strong) NSLayoutDimension* widthAnchor VISTREL_MACOS(10.11);
@property(readonly, strong) NSLayoutDimension* heightAnchor VISTREL_MACOS(10.11);
- (void)setContentHuggingPriority:(NSLayoutPriority)priority
                   forOrientation:(NSLayoutConstraintOrientation)orientation VISTREL_MACOS(10.7);
@end
