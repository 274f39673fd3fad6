#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

typedef NSString* NSAttributedStringKey;

@interface NSAttributedString : NSObject <NSCopying>
- (instancetype)initWithString:(NSString*)str
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
@end
