#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSString.h>

@interface NSProcessInfo (Launch)
@property(readonly, copy) NSArray<NSString*>* arguments;
@property(readonly, copy) NSDictionary<NSString*, NSString*>* environment;
@end
