#include "platform/mac/settings_app/settings_group_view.h"

namespace {

constexpr CGFloat cornerRadius = 10;
// Faint enough to read as a group on the window's background in both appearances.
constexpr CGFloat fillAlpha = 0.04;
constexpr CGFloat edgeAlpha = 0.1;
constexpr CGFloat separatorInset = 14;

}  // namespace

@implementation VistrelSettingsGroupView

- (instancetype)initWithRows:(NSArray<NSView*>*)rows {
    if (!(self = [super initWithFrame:NSZeroRect])) return nil;
    self.translatesAutoresizingMaskIntoConstraints = NO;
    NSStackView* stack = [[NSStackView alloc] initWithFrame:NSZeroRect];
    stack.orientation = NSUserInterfaceLayoutOrientationVertical;
    stack.spacing = 0;
    stack.translatesAutoresizingMaskIntoConstraints = NO;
    [self addSubview:stack];
    NSMutableArray<NSLayoutConstraint*>* constraints = [NSMutableArray arrayWithCapacity:8];
    for (NSUInteger index = 0; index < rows.count; ++index) {
        if (index > 0) {
            NSBox* line = [[NSBox alloc] initWithFrame:NSZeroRect];
            line.boxType = NSBoxSeparator;
            [stack addArrangedSubview:line];
            [constraints addObject:[line.widthAnchor constraintEqualToAnchor:stack.widthAnchor
                                                                    constant:-separatorInset * 2]];
        }
        [stack addArrangedSubview:rows[index]];
        [constraints addObject:[rows[index].widthAnchor constraintEqualToAnchor:stack.widthAnchor]];
    }
    [constraints addObject:[stack.topAnchor constraintEqualToAnchor:self.topAnchor]];
    [constraints addObject:[stack.bottomAnchor constraintEqualToAnchor:self.bottomAnchor]];
    [constraints addObject:[stack.leadingAnchor constraintEqualToAnchor:self.leadingAnchor]];
    [constraints addObject:[stack.trailingAnchor constraintEqualToAnchor:self.trailingAnchor]];
    [NSLayoutConstraint activateConstraints:constraints];
    return self;
}

- (void)drawRect:(NSRect)dirtyRect {
    (void)dirtyRect;
    // Drawn here rather than with fixed layer colours so that both follow the appearance.
    NSBezierPath* shape = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(self.bounds, 0.5, 0.5)
                                                          xRadius:cornerRadius
                                                          yRadius:cornerRadius];
    [[NSColor.labelColor colorWithAlphaComponent:fillAlpha] setFill];
    [shape fill];
    [[NSColor.labelColor colorWithAlphaComponent:edgeAlpha] setStroke];
    [shape stroke];
}

@end
