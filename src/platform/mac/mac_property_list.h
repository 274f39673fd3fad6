#pragma once

#import <Foundation/Foundation.h>

#include "platform/defaults_value.h"

namespace vistrel::MacPropertyList {

// A property-list object (NSNumber, NSString, NSData, NSArray, NSDictionary) as a value;
// anything else, and nil, as nothing.
DefaultsValue value(id _Nullable object);
// A value as a property-list object; nil for nothing.
id _Nullable object(const DefaultsValue& value);

}  // namespace vistrel::MacPropertyList
