#pragma once

// The running system's version, as NSProcessInfo reports it.

#include <Foundation/NSObjCRuntime.h>
#include <Foundation/NSProcessInfo.h>

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (VistrelOperatingSystemVersion)
@property(readonly) NSOperatingSystemVersion operatingSystemVersion VISTREL_MACOS(10.10);
@end
