#pragma once

#import <AppKit/AppKit.h>

#include <memory>

#include "platform/display_list.h"

// The one content view of every agent window: it replays a display list into its Core
// Graphics context. Flipped exactly when the list is; display-only, so it never takes the
// mouse (hit-testing answers nil).
@interface VistrelDisplayListView : NSView

// Replaces the drawing and marks the whole view for redrawing.
- (void)setDisplayList:(std::shared_ptr<const vistrel::DisplayList>)displayList;

@end

namespace vistrel {

// Replays a display list into the current AppKit graphics context (an image's drawing
// handler, for one), which must be flipped exactly when the list is.
void drawDisplayListInCurrentContext(const DisplayList& list);

}  // namespace vistrel
