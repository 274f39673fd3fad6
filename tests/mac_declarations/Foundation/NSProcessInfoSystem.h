#pragma once

#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSString.h>

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (OperatingSystem)
// Human-readable, not for parsing: "Version 15.1 (Build 24B83)".
@property(readonly, copy) NSString* operatingSystemVersionString;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion VISTREL_MACOS(10.10);
@property(readonly) NSUInteger processorCount VISTREL_MACOS(10.5);
@end
