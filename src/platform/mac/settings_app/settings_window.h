#pragma once

#import <AppKit/AppKit.h>

#include "settings_app/settings_model.h"

// The Settings app's one window: the sidebar of pages beside the page that shows, or the
// welcome guide's step alone with Back and Continue under it. It follows the model: a new
// page or step is built anew, any other change refreshes the values shown.
@interface VistrelSettingsWindow : NSObject <NSWindowDelegate>

- (instancetype)initWithModel:(vistrel::SettingsModel&)model;

// Brings the window to the front and lets the model keep its status current.
- (void)show;

@end
