#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>
#include <Foundation/NSURLResources.h>

typedef NSString* NSFileAttributeKey;

VISTREL_OPTIONS(NSUInteger, NSDirectoryEnumerationOptions){
    NSDirectoryEnumerationSkipsSubdirectoryDescendants = 1UL << 0,
    NSDirectoryEnumerationSkipsHiddenFiles = 1UL << 2,
};

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
- (BOOL)createDirectoryAtPath:(NSString*)path
    withIntermediateDirectories:(BOOL)createIntermediates
                     attributes:(nullable NSDictionary<NSFileAttributeKey, id>*)attributes
                          error:(NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.5);
- (BOOL)copyItemAtPath:(NSString*)srcPath
                toPath:(NSString*)dstPath
                 error:(NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.5);
- (BOOL)removeItemAtPath:(NSString*)path
                   error:(NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.5);
- (BOOL)fileExistsAtPath:(NSString*)path;
// Nil when the folder cannot be read.
- (nullable NSArray<NSURL*>*)contentsOfDirectoryAtURL:(NSURL*)url
                           includingPropertiesForKeys:(nullable NSArray<NSURLResourceKey>*)keys
                                              options:(NSDirectoryEnumerationOptions)mask
                                                error:(NSError* _Nullable* _Nullable)error
    VISTREL_MACOS(10.6);
@end
