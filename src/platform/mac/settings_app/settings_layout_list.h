#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "settings_app/settings_model.h"

// The saved layouts as a native table: names edited in place, Delete (after asking), Move Up
// and Move Down, Import… and Export… through the system's open and save panels, and the
// model's message about the last of these under the buttons.
@interface VistrelSettingsLayoutList : NSView <NSTableViewDataSource, NSTableViewDelegate>

- (instancetype)initWithModel:(vistrel::SettingsModel&)model
                    controlId:(const std::string&)controlId;

// Shows the model's layouts and message again.
- (void)refresh;

@end
