#pragma once

#include <Foundation/NSString.h>

@interface NSError : NSObject <NSCopying>
@property(readonly, copy) NSString* localizedDescription;
@end
