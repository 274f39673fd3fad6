#pragma once

#import <AppKit/AppKit.h>

// The Settings app's menu bar: the application menu (About, Hide, Quit), Edit for the
// layout names typed in the window, and Window (Minimize, Close), with their usual keys.
// `about` shows the About page; `targets` keeps its target alive.
namespace vistrel {

NSMenu* makeSettingsMainMenu(void (^about)(void), NSMutableArray* targets);

}  // namespace vistrel
