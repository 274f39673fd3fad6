#pragma once

#include <Foundation/NSData.h>
#include <Foundation/NSObject.h>

@interface NSFileHandle : NSObject
// A handle that reads nothing and swallows what is written to it.
@property(class, readonly, strong) NSFileHandle* fileHandleWithNullDevice;
// Blocks until the other end closes.
- (NSData*)readDataToEndOfFile;
@end

@interface NSPipe : NSObject
+ (NSPipe*)pipe;
@property(readonly, strong) NSFileHandle* fileHandleForReading;
@end
