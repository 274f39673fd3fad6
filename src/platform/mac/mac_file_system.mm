#include "platform/mac/mac_file_system.h"

#include <stdlib.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {

constexpr char uniqueSuffixPattern[] = "XXXXXX";

FileError outcome(BOOL ok, NSError* error) {
    if (ok) return std::nullopt;
    return describe(error);
}

}  // namespace

std::string MacFileSystem::homeDirectory() {
    return utf8(NSHomeDirectory());
}

std::optional<std::string> MacFileSystem::makeTemporaryFolder(std::string_view prefix) {
    NSString* parent = NSTemporaryDirectory();
    std::string pattern = utf8([parent
        stringByAppendingPathComponent:nsString(std::string(prefix) + uniqueSuffixPattern)]);
    if (mkdtemp(pattern.data()) == nullptr) return std::nullopt;
    return pattern;
}

FileError MacFileSystem::createFolder(const std::string& folder) {
    NSError* error = nil;
    const BOOL ok = [NSFileManager.defaultManager createDirectoryAtPath:nsString(folder)
                                            withIntermediateDirectories:NO
                                                             attributes:nil
                                                                  error:&error];
    return outcome(ok, error);
}

FileError MacFileSystem::writeAtomically(const std::string& file, std::string_view bytes) {
    NSData* data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
    NSError* error = nil;
    const BOOL ok = [data writeToFile:nsString(file) options:NSDataWritingAtomic error:&error];
    return outcome(ok, error);
}

FileError MacFileSystem::copy(const std::string& from, const std::string& to) {
    NSError* error = nil;
    const BOOL ok = [NSFileManager.defaultManager copyItemAtPath:nsString(from)
                                                          toPath:nsString(to)
                                                           error:&error];
    return outcome(ok, error);
}

FileError MacFileSystem::remove(const std::string& item) {
    NSError* error = nil;
    const BOOL ok = [NSFileManager.defaultManager removeItemAtPath:nsString(item) error:&error];
    return outcome(ok, error);
}

FileError MacFileSystem::trash(const std::string& item) {
    NSError* error = nil;
    const BOOL ok =
        [NSFileManager.defaultManager trashItemAtURL:[NSURL fileURLWithPath:nsString(item)]
                                    resultingItemURL:nil
                                               error:&error];
    return outcome(ok, error);
}

bool MacFileSystem::exists(const std::string& item) {
    return [NSFileManager.defaultManager fileExistsAtPath:nsString(item)];
}

std::vector<FileEntry> MacFileSystem::contentsWithModificationDates(const std::string& folder) {
    std::vector<FileEntry> entries;
    NSArray<NSURL*>* items = [NSFileManager.defaultManager
          contentsOfDirectoryAtURL:[NSURL fileURLWithPath:nsString(folder) isDirectory:YES]
        includingPropertiesForKeys:@[ NSURLContentModificationDateKey ]
                           options:0
                             error:nil];
    for (NSURL* item in items) {
        NSDate* modified = nil;
        [item getResourceValue:&modified forKey:NSURLContentModificationDateKey error:nil];
        if (modified == nil) continue;
        entries.push_back({utf8(item.path), modified.timeIntervalSince1970});
    }
    return entries;
}

}  // namespace vistrel
