#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

VISTREL_OPTIONS(NSUInteger, NSKeyValueObservingOptions){
    NSKeyValueObservingOptionNew = 0x01,
};

typedef NSString* NSKeyValueChangeKey;

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end
