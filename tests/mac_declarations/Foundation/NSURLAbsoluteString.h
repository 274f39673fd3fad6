#pragma once

#include <Foundation/NSURL.h>

@interface NSURL (AbsoluteString)
@property(nullable, readonly, copy) NSString* absoluteString;
@end
