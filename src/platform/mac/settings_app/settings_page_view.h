#pragma once

#import <AppKit/AppKit.h>

#include "settings_app/settings_model.h"

// One page of the Settings window (a sidebar page or a welcome step), built from the model
// by one generic renderer: the page's title and sentence, then every section as a rounded
// group of rows, each control the native AppKit control for its kind. Values are read from
// the model when the page is built and again on -refresh; every change goes back through
// the model.
@interface VistrelSettingsPageView : NSView

- (instancetype)initWithPage:(const vistrel::Page&)page model:(vistrel::SettingsModel&)model;

// Reads every control's value, and whether it can be used now, from the model again.
- (void)refresh;

@end
