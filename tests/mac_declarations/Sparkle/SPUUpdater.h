#pragma once

#include <Foundation/Foundation.h>
#include <Sparkle/SPUStandardUserDriver.h>

@protocol SPUUpdaterDelegate <NSObject>
@end

@interface SPUUpdater : NSObject
- (instancetype)initWithHostBundle:(NSBundle*)hostBundle
                 applicationBundle:(NSBundle*)applicationBundle
                        userDriver:(id<SPUUserDriver>)userDriver
                          delegate:(nullable id<SPUUpdaterDelegate>)delegate;
// NO, with the error, when the updater cannot be started (a bad feed or key, say).
- (BOOL)startUpdater:(NSError* _Nullable* _Nullable)error;
- (void)checkForUpdates;
@property(nonatomic, readonly, nullable) NSURL* feedURL;
@property(nonatomic) BOOL automaticallyDownloadsUpdates;
@end
