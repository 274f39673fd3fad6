#pragma once

#import <AppKit/AppKit.h>

#include "settings_app/settings_model.h"

// The chosen saved layout's windows under the layouts table: a title with the Copy URL
// button, then one line per window with its application and its document's file name (the
// full path as the tool tip) or its title. Hidden while no layout is chosen.
@interface VistrelSettingsLayoutWindows : NSStackView

- (instancetype)initWithModel:(vistrel::SettingsModel&)model;

// Shows the model's chosen layout again.
- (void)refresh;

@end
