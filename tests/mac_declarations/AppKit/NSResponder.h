#pragma once

#include <Foundation/NSObject.h>

@interface NSResponder : NSObject
@end
