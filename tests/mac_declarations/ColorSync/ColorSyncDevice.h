#pragma once

#include <CoreFoundation/CFUUID.h>

VISTREL_EXTERN_C_BEGIN
// The display's persistent UUID; null for an unknown display.
VISTREL_MACOS(10.13) CFUUIDRef CGDisplayCreateUUIDFromDisplayID(uint32_t displayID);
VISTREL_EXTERN_C_END
