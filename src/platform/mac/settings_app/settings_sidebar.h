#pragma once

#import <AppKit/AppKit.h>

#include "settings_app/settings_model.h"

// The window's sidebar: the model's pages as a source list, each with its symbol. Choosing
// one selects that page in the model.
@interface VistrelSettingsSidebar : NSScrollView <NSTableViewDataSource, NSTableViewDelegate>

- (instancetype)initWithModel:(vistrel::SettingsModel&)model;

// Highlights the model's selected page without telling the model again.
- (void)showSelection;

@end
