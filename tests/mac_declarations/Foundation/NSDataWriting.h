#pragma once

#include <Foundation/NSData.h>
#include <Foundation/NSError.h>
#include <Foundation/NSString.h>

VISTREL_OPTIONS(NSUInteger, NSDataWritingOptions){
    NSDataWritingAtomic = 1UL << 0,
};

@interface NSData (NSDataWriting)
- (BOOL)writeToFile:(NSString*)path
            options:(NSDataWritingOptions)writeOptionsMask
              error:(NSError* _Nullable* _Nullable)errorPtr VISTREL_MACOS(10.4);
@end
