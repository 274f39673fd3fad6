#include "platform/mac/settings_app/settings_page_view.h"

#include <functional>
#include <vector>

#include "platform/mac/display_list_view.h"
#include "platform/mac/mac_appearance_name.h"
#include "platform/mac/mac_block_target.h"
#include "platform/mac/mac_strings.h"
#include "platform/mac/settings_app/settings_group_view.h"
#include "platform/mac/settings_app/settings_layout_list.h"
#include "platform/mac/settings_app/settings_widgets.h"

namespace {

using vistrel::Control;
using vistrel::ControlKind;
using vistrel::SettingsModel;
using vistrel::SettingsWidgets::bodyFont;
using vistrel::SettingsWidgets::label;
using vistrel::SettingsWidgets::smallFont;
using vistrel::SettingsWidgets::stack;

constexpr CGFloat pageMargin = 28;
constexpr CGFloat sectionSpacing = 22;
constexpr CGFloat titleToSection = 6;
constexpr CGFloat rowInsetX = 14;
constexpr CGFloat rowInsetY = 9;
constexpr CGFloat rowMinimumHeight = 24;
constexpr CGFloat titleSize = 22;
constexpr CGFloat sliderWidth = 200;

// The option the model reads as chosen; -1 (nothing selected) for none.
NSInteger indexOfChoice(const SettingsModel& model, const Control& control) {
    const std::string chosen = model.choice(control.id);
    for (std::size_t index = 0; index < control.options.size(); ++index) {
        if (control.options[index].value == chosen) return static_cast<NSInteger>(index);
    }
    return -1;
}

}  // namespace

@implementation VistrelSettingsPageView {
    SettingsModel* model_;
    std::vector<std::function<void()>> refreshers_;
    // Controls hold their targets weakly.
    NSMutableArray<VistrelBlockTarget*>* targets_;
}

- (instancetype)initWithPage:(const vistrel::Page&)page model:(SettingsModel&)model {
    if (!(self = [super initWithFrame:NSZeroRect])) return nil;
    model_ = &model;
    targets_ = [NSMutableArray arrayWithCapacity:16];
    self.translatesAutoresizingMaskIntoConstraints = NO;
    NSStackView* column = stack(NSUserInterfaceLayoutOrientationVertical, sectionSpacing);
    column.alignment = NSLayoutAttributeLeading;
    column.edgeInsets = NSEdgeInsetsMake(pageMargin, pageMargin, pageMargin, pageMargin);
    [self addSubview:column];
    [self addHeaderOf:page to:column];
    for (const vistrel::Section& section : page.sections)
        [self addSection:section to:column];
    [NSLayoutConstraint activateConstraints:@[
        [column.topAnchor constraintEqualToAnchor:self.topAnchor],
        [column.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
        [column.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
        [column.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
    ]];
    [self refresh];
    return self;
}

// The page scrolls from its top.
- (BOOL)isFlipped {
    return YES;
}

- (void)refresh {
    for (const auto& refresher : refreshers_)
        refresher();
}

// Pictures are drawn for one appearance; a change of appearance draws them again.
- (void)viewDidChangeEffectiveAppearance {
    [super viewDidChangeEffectiveAppearance];
    [self refresh];
}

- (void)addHeaderOf:(const vistrel::Page&)page to:(NSStackView*)column {
    NSTextField* title =
        label(page.title, [NSFont boldSystemFontOfSize:titleSize], NSColor.labelColor);
    [column addArrangedSubview:title];
    if (!page.subtitle.empty()) {
        NSTextField* subtitle = label(page.subtitle, bodyFont(), NSColor.secondaryLabelColor);
        [column setCustomSpacing:titleToSection afterView:title];
        [column addArrangedSubview:subtitle];
    }
}

- (void)addSection:(const vistrel::Section&)section to:(NSStackView*)column {
    NSStackView* block = stack(NSUserInterfaceLayoutOrientationVertical, titleToSection);
    block.alignment = NSLayoutAttributeLeading;
    if (!section.title.empty()) {
        [block addArrangedSubview:label(section.title,
                                        [NSFont boldSystemFontOfSize:NSFont.systemFontSize],
                                        NSColor.labelColor)];
    }
    NSMutableArray<NSView*>* rows = [NSMutableArray arrayWithCapacity:section.controls.size()];
    for (const Control& control : section.controls)
        [rows addObject:[self rowFor:control]];
    VistrelSettingsGroupView* group = [[VistrelSettingsGroupView alloc] initWithRows:rows];
    [block addArrangedSubview:group];
    if (!section.footnote.empty())
        [block
            addArrangedSubview:label(section.footnote, smallFont(), NSColor.secondaryLabelColor)];
    [column addArrangedSubview:block];
    [NSLayoutConstraint activateConstraints:@[
        [block.widthAnchor constraintEqualToAnchor:column.widthAnchor constant:-pageMargin * 2],
        [group.widthAnchor constraintEqualToAnchor:block.widthAnchor],
    ]];
}

// A row: the label (and its help) at the leading edge, the control at the trailing edge;
// wide controls (a picture, the layouts list) stand under their label instead.
- (NSView*)rowFor:(const Control&)control {
    NSView* view = [self controlFor:control];
    const bool wide =
        control.kind == ControlKind::picture || control.kind == ControlKind::layoutList;
    NSStackView* row = stack(wide ? NSUserInterfaceLayoutOrientationVertical
                                  : NSUserInterfaceLayoutOrientationHorizontal,
                             wide ? titleToSection : rowInsetX);
    row.alignment = wide ? NSLayoutAttributeCenterX : NSLayoutAttributeCenterY;
    row.edgeInsets = NSEdgeInsetsMake(rowInsetY, rowInsetX, rowInsetY, rowInsetX);
    NSView* text = [self labelColumnFor:control];
    if (text != nil) [row addArrangedSubview:text];
    if (view != nil) [row addArrangedSubview:view];
    [row.heightAnchor constraintGreaterThanOrEqualToConstant:rowMinimumHeight + rowInsetY * 2]
        .active = YES;
    if (wide && text != nil) {
        [text.widthAnchor constraintEqualToAnchor:row.widthAnchor constant:-rowInsetX * 2].active =
            YES;
    }
    return row;
}

- (nullable NSView*)labelColumnFor:(const Control&)control {
    if (control.label.empty() && control.help.empty()) return nil;
    NSStackView* column = stack(NSUserInterfaceLayoutOrientationVertical, 2);
    column.alignment = NSLayoutAttributeLeading;
    if (!control.label.empty()) {
        NSView* title = label(control.label, bodyFont(), NSColor.labelColor);
        if (control.kind == ControlKind::shortcutKeys) {
            NSStackView* line = stack(NSUserInterfaceLayoutOrientationHorizontal, 8);
            [line addArrangedSubview:title];
            [line addArrangedSubview:label(control.keys,
                                           [NSFont monospacedSystemFontOfSize:NSFont.systemFontSize
                                                                       weight:NSFontWeightRegular],
                                           NSColor.secondaryLabelColor)];
            title = line;
        }
        [column addArrangedSubview:title];
    }
    if (!control.help.empty())
        [column addArrangedSubview:label(control.help, smallFont(), NSColor.secondaryLabelColor)];
    [column setContentHuggingPriority:NSLayoutPriorityDefaultLow
                       forOrientation:NSLayoutConstraintOrientationHorizontal];
    return column;
}

- (nullable NSView*)controlFor:(const Control&)control {
    switch (control.kind) {
        case ControlKind::toggle:
        case ControlKind::shortcutKeys:
            return [self switchFor:control];
        case ControlKind::choice:
            return control.choiceStyle == vistrel::ChoiceStyle::segmented
                       ? [self segmentsFor:control]
                       : [self popUpFor:control];
        case ControlKind::slider:
            return [self sliderFor:control];
        case ControlKind::button:
            return [self buttonFor:control];
        case ControlKind::status:
            return [self statusFor:control];
        case ControlKind::text:
            return [self textFor:control];
        case ControlKind::link:
            return [self linkFor:control];
        case ControlKind::picture:
            return [self pictureFor:control];
        case ControlKind::layoutList:
            return [self layoutListFor:control];
    }
    return nil;
}

// Wires a control's action to a block, keeping the target alive with the page.
- (void)connect:(NSControl*)control to:(void (^)(void))handler {
    VistrelBlockTarget* target = [[VistrelBlockTarget alloc] initWithHandler:handler];
    [targets_ addObject:target];
    control.target = target;
    control.action = @selector(run:);
}

// Refreshes `control` with `read` and keeps it usable only while the model allows.
- (void)keep:(NSControl*)control fresh:(const Control&)definition with:(std::function<void()>)read {
    SettingsModel* settings = model_;
    __weak NSControl* weakControl = control;
    const std::string controlId = definition.id;
    refreshers_.push_back([settings, weakControl, controlId, read = std::move(read)] {
        read();
        weakControl.enabled = settings->isEnabled(controlId);
    });
}

- (NSView*)switchFor:(const Control&)control {
    NSSwitch* toggle = [[NSSwitch alloc] initWithFrame:NSZeroRect];
    SettingsModel* model = model_;
    const std::string controlId = control.id;
    __weak NSSwitch* weakToggle = toggle;
    [self connect:toggle
               to:^{
                 model->setOn(controlId, weakToggle.state == NSControlStateValueOn);
               }];
    [self keep:toggle
         fresh:control
          with:[model, controlId, weakToggle] {
              weakToggle.state =
                  model->isOn(controlId) ? NSControlStateValueOn : NSControlStateValueOff;
          }];
    toggle.accessibilityLabel = vistrel::nsString(control.label);
    return toggle;
}

- (NSView*)popUpFor:(const Control&)control {
    NSPopUpButton* popUp = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    for (const vistrel::ChoiceOption& option : control.options)
        [popUp addItemWithTitle:vistrel::nsString(option.title)];
    SettingsModel* model = model_;
    const Control copy = control;
    __weak NSPopUpButton* weakPopUp = popUp;
    [self connect:popUp
               to:^{
                 const NSInteger index = weakPopUp.indexOfSelectedItem;
                 if (index >= 0) model->choose(copy.id, copy.options[index].value);
               }];
    [self keep:popUp
         fresh:control
          with:[model, copy, weakPopUp] {
              [weakPopUp selectItemAtIndex:indexOfChoice(*model, copy)];
          }];
    popUp.accessibilityLabel = vistrel::nsString(control.label);
    return popUp;
}

- (NSView*)segmentsFor:(const Control&)control {
    NSMutableArray<NSString*>* titles = [NSMutableArray arrayWithCapacity:control.options.size()];
    for (const vistrel::ChoiceOption& option : control.options)
        [titles addObject:vistrel::nsString(option.title)];
    NSSegmentedControl* segments =
        [NSSegmentedControl segmentedControlWithLabels:titles
                                          trackingMode:NSSegmentSwitchTrackingSelectOne
                                                target:nil
                                                action:nil];
    SettingsModel* model = model_;
    const Control copy = control;
    __weak NSSegmentedControl* weakSegments = segments;
    [self connect:segments
               to:^{
                 const NSInteger index = weakSegments.selectedSegment;
                 if (index >= 0) model->choose(copy.id, copy.options[index].value);
               }];
    [self keep:segments
         fresh:control
          with:[model, copy, weakSegments] {
              weakSegments.selectedSegment = indexOfChoice(*model, copy);
          }];
    segments.accessibilityLabel = vistrel::nsString(control.label);
    return segments;
}

- (NSView*)sliderFor:(const Control&)control {
    const vistrel::SliderRange range = control.range;
    NSSlider* slider = [NSSlider sliderWithValue:range.minimum
                                        minValue:range.minimum
                                        maxValue:range.maximum
                                          target:nil
                                          action:nil];
    NSTextField* value = label("",
                               [NSFont monospacedDigitSystemFontOfSize:NSFont.systemFontSize
                                                                weight:NSFontWeightRegular],
                               NSColor.secondaryLabelColor);
    SettingsModel* model = model_;
    const std::string controlId = control.id;
    __weak NSSlider* weakSlider = slider;
    [self connect:slider
               to:^{
                 model->setNumber(controlId, weakSlider.doubleValue);
               }];
    __weak NSTextField* weakValue = value;
    [self keep:slider
         fresh:control
          with:[model, controlId, range, weakSlider, weakValue] {
              const double number = model->number(controlId);
              weakSlider.doubleValue = number;
              weakValue.stringValue =
                  vistrel::nsString(std::to_string(static_cast<long>(number)) + " " + range.unit);
          }];
    slider.accessibilityLabel = vistrel::nsString(control.label);
    [slider.widthAnchor constraintEqualToConstant:sliderWidth].active = YES;
    NSStackView* line = stack(NSUserInterfaceLayoutOrientationHorizontal, 8);
    [line addArrangedSubview:slider];
    [line addArrangedSubview:value];
    return line;
}

- (NSView*)buttonFor:(const Control&)control {
    NSButton* button = [NSButton buttonWithTitle:vistrel::nsString(control.buttonTitle)
                                          target:nil
                                          action:nil];
    [self connectPress:button of:control];
    return button;
}

- (NSView*)linkFor:(const Control&)control {
    NSButton* link = [NSButton buttonWithTitle:vistrel::nsString(control.url)
                                        target:nil
                                        action:nil];
    link.bordered = NO;
    link.contentTintColor = NSColor.linkColor;
    [self connectPress:link of:control];
    return link;
}

- (void)connectPress:(NSButton*)button of:(const Control&)control {
    SettingsModel* model = model_;
    const std::string controlId = control.id;
    [self connect:button
               to:^{
                 model->press(controlId);
               }];
    [self keep:button fresh:control with:[] {}];
}

- (NSView*)statusFor:(const Control&)control {
    NSImageView* mark = [[NSImageView alloc] initWithFrame:NSZeroRect];
    NSTextField* text = label("", bodyFont(), NSColor.secondaryLabelColor);
    SettingsModel* model = model_;
    const std::string controlId = control.id;
    __weak NSImageView* weakMark = mark;
    __weak NSTextField* weakText = text;
    refreshers_.push_back([model, controlId, weakMark, weakText] {
        const vistrel::StatusState state = model->status(controlId);
        weakText.stringValue = vistrel::nsString(state.text);
        weakMark.image =
            [NSImage imageWithSystemSymbolName:state.good ? @"checkmark.circle.fill"
                                                          : @"exclamationmark.circle.fill"
                      accessibilityDescription:nil];
        weakMark.contentTintColor =
            state.good ? NSColor.systemGreenColor : NSColor.systemOrangeColor;
    });
    NSStackView* line = stack(NSUserInterfaceLayoutOrientationHorizontal, 6);
    [line addArrangedSubview:mark];
    [line addArrangedSubview:text];
    return line;
}

- (NSView*)textFor:(const Control&)control {
    NSTextField* text = label(control.value, bodyFont(), NSColor.secondaryLabelColor);
    text.selectable = YES;
    return text;
}

- (NSView*)pictureFor:(const Control&)control {
    VistrelDisplayListView* picture = [[VistrelDisplayListView alloc] initWithFrame:NSZeroRect];
    picture.translatesAutoresizingMaskIntoConstraints = NO;
    [NSLayoutConstraint activateConstraints:@[
        [picture.widthAnchor constraintEqualToConstant:control.pictureSize.width],
        [picture.heightAnchor constraintEqualToConstant:control.pictureSize.height],
    ]];
    SettingsModel* model = model_;
    const std::string controlId = control.id;
    __weak VistrelDisplayListView* weakPicture = picture;
    refreshers_.push_back([model, controlId, weakPicture] {
        [weakPicture
            setDisplayList:model->picture(controlId,
                                          vistrel::appearanceOf(weakPicture.effectiveAppearance))];
    });
    return picture;
}

- (NSView*)layoutListFor:(const Control&)control {
    VistrelSettingsLayoutList* list = [[VistrelSettingsLayoutList alloc] initWithModel:*model_
                                                                             controlId:control.id];
    __weak VistrelSettingsLayoutList* weakList = list;
    refreshers_.push_back([weakList] { [weakList refresh]; });
    return list;
}

@end
