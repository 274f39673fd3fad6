#pragma once

// The umbrella over Core Foundation, Core Graphics (events, window list), ColorSync
// (display UUIDs), HIServices (accessibility) and Core Text.

#include <ColorSync/ColorSync.h>
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>
#include <CoreText/CoreText.h>
#include <HIServices/HIServices.h>
