#pragma once

// Quartz event sources: the state table an event posted by the agent is counted in.

#include <CoreGraphics/CGEvent.h>

VISTREL_ENUM(int32_t, CGEventSourceStateID){
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1,
};

VISTREL_EXTERN_C_BEGIN
// Null when the state is not valid; released with CFRelease.
CGEventSourceRef CGEventSourceCreate(CGEventSourceStateID stateID);
VISTREL_EXTERN_C_END
