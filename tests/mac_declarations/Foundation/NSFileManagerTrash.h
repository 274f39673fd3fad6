#pragma once

#include <Foundation/NSFileManager.h>

@interface NSFileManager (Trash)
// Moves the item to the Trash; `outResultingURL` receives where it went.
- (BOOL)trashItemAtURL:(NSURL*)url
      resultingItemURL:(NSURL* _Nullable* _Nullable)outResultingURL
                 error:(NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.8);
@end
