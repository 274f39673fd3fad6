#include "platform/mac/mac_workspace.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

#include "platform/alpha.h"
#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {

ActivationPolicy policyOf(NSApplicationActivationPolicy policy) {
    switch (policy) {
        case NSApplicationActivationPolicyRegular:
            return ActivationPolicy::regular;
        case NSApplicationActivationPolicyAccessory:
            return ActivationPolicy::accessory;
        case NSApplicationActivationPolicyProhibited:
            return ActivationPolicy::prohibited;
    }
    return ActivationPolicy::prohibited;
}

RunningApplication describeApplication(NSRunningApplication* app) {
    return {app.processIdentifier,         utf8Text(app.bundleIdentifier),
            utf8Text(app.localizedName),   policyOf(app.activationPolicy),
            static_cast<bool>(app.hidden), static_cast<bool>(app.terminated)};
}

NSRunningApplication* running(Pid pid) {
    return [NSRunningApplication runningApplicationWithProcessIdentifier:pid];
}

// NSBitmapFormat's default: alpha last, premultiplied.
constexpr NSBitmapFormat premultipliedAlphaLast = 0;

Rect rect(NSRect r) {
    return {r.origin.x, r.origin.y, r.size.width, r.size.height};
}

}  // namespace

std::vector<RunningApplication> MacWorkspace::runningApplications() {
    std::vector<RunningApplication> result;
    for (NSRunningApplication* app in NSWorkspace.sharedWorkspace.runningApplications) {
        result.push_back(describeApplication(app));
    }
    return result;
}

std::optional<RunningApplication> MacWorkspace::application(Pid pid) {
    NSRunningApplication* app = running(pid);
    if (app == nil) return std::nullopt;
    return describeApplication(app);
}

bool MacWorkspace::hide(Pid pid) {
    return [running(pid) hide];
}
bool MacWorkspace::unhide(Pid pid) {
    return [running(pid) unhide];
}
bool MacWorkspace::activate(Pid pid) {
    return [running(pid) activateWithOptions:0];
}
bool MacWorkspace::terminate(Pid pid) {
    return [running(pid) terminate];
}
bool MacWorkspace::forceTerminate(Pid pid) {
    return [running(pid) forceTerminate];
}

std::optional<std::string> MacWorkspace::applicationURL(const std::string& bundleIdentifier) {
    NSURL* url = [NSWorkspace.sharedWorkspace
        URLForApplicationWithBundleIdentifier:nsString(bundleIdentifier)];
    return url == nil ? std::nullopt : utf8Text(url.path);
}

namespace {

NSWorkspaceOpenConfiguration* nsConfiguration(const OpenConfiguration& configuration) {
    NSWorkspaceOpenConfiguration* open = [NSWorkspaceOpenConfiguration configuration];
    open.activates = configuration.activates;
    open.hides = configuration.hides;
    open.createsNewApplicationInstance = configuration.createsNewApplicationInstance;
    NSMutableArray<NSString*>* arguments = [NSMutableArray array];
    for (const std::string& argument : configuration.arguments)
        [arguments addObject:nsString(argument)];
    open.arguments = arguments;
    return open;
}

}  // namespace

void MacWorkspace::openApplication(const std::string& url, const OpenConfiguration& configuration,
                                   OpenCompletion completion) {
    NSWorkspaceOpenConfiguration* open = nsConfiguration(configuration);
    [NSWorkspace.sharedWorkspace openApplicationAtURL:[NSURL fileURLWithPath:nsString(url)]
                                        configuration:open
                                    completionHandler:^(NSRunningApplication* app, NSError* error) {
                                      const bool ok = app != nil && error == nil;
                                      const std::string reason =
                                          error != nil ? describe(error) : std::string();
                                      dispatch_async(dispatch_get_main_queue(), ^{
                                        completion(ok, reason);
                                      });
                                    }];
}

// The completion handler runs on a concurrent queue of the workspace's, so waiting for it
// here cannot hold it up.
bool MacWorkspace::launchApplication(const std::string& url, const OpenConfiguration& configuration,
                                     double timeout) {
    dispatch_semaphore_t done = dispatch_semaphore_create(0);
    __block bool launched = false;
    [NSWorkspace.sharedWorkspace openApplicationAtURL:[NSURL fileURLWithPath:nsString(url)]
                                        configuration:nsConfiguration(configuration)
                                    completionHandler:^(NSRunningApplication* app, NSError* error) {
                                      launched = app != nil && error == nil;
                                      dispatch_semaphore_signal(done);
                                    }];
    const auto wait = static_cast<int64_t>(timeout * NSEC_PER_SEC);
    return dispatch_semaphore_wait(done, dispatch_time(DISPATCH_TIME_NOW, wait)) == 0 && launched;
}

bool MacWorkspace::openDocument(const std::string& fileURL, const std::string& applicationURL,
                                const OpenConfiguration& configuration, double timeout) {
    NSURL* document = [NSURL URLWithString:nsString(fileURL)];
    if (document == nil) return false;
    NSURL* const documents[] = {document};
    dispatch_semaphore_t done = dispatch_semaphore_create(0);
    __block bool opened = false;
    [NSWorkspace.sharedWorkspace openURLs:[NSArray arrayWithObjects:documents count:1]
                     withApplicationAtURL:[NSURL fileURLWithPath:nsString(applicationURL)]
                            configuration:nsConfiguration(configuration)
                        completionHandler:^(NSRunningApplication* app, NSError* error) {
                          opened = app != nil && error == nil;
                          dispatch_semaphore_signal(done);
                        }];
    const auto wait = static_cast<int64_t>(timeout * NSEC_PER_SEC);
    return dispatch_semaphore_wait(done, dispatch_time(DISPATCH_TIME_NOW, wait)) == 0 && opened;
}

// The icon drawn into a bitmap of our own layout: 8-bit RGBA with premultiplied alpha (the
// only layout with alpha Core Graphics draws into), rows from the top; then converted to
// straight alpha, which is what the canvas takes.
std::shared_ptr<const Image> MacWorkspace::applicationIcon(const std::string& bundleIdentifier,
                                                           int pixels) {
    const auto location = applicationURL(bundleIdentifier);
    if (!location || pixels <= 0) return nullptr;
    NSImage* icon = [NSWorkspace.sharedWorkspace iconForFile:nsString(*location)];
    NSBitmapImageRep* bitmap =
        [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                pixelsWide:pixels
                                                pixelsHigh:pixels
                                             bitsPerSample:8
                                           samplesPerPixel:4
                                                  hasAlpha:YES
                                                  isPlanar:NO
                                            colorSpaceName:NSDeviceRGBColorSpace
                                              bitmapFormat:premultipliedAlphaLast
                                               bytesPerRow:pixels * 4
                                              bitsPerPixel:32];
    if (bitmap == nil || bitmap.bitmapData == nullptr) return nullptr;
    NSGraphicsContext* context = [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap];
    if (context == nil) return nullptr;
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = context;
    [icon drawInRect:NSMakeRect(0, 0, pixels, pixels)];
    [NSGraphicsContext restoreGraphicsState];
    auto image = std::make_shared<Image>();
    image->width = pixels;
    image->height = pixels;
    const unsigned char* data = bitmap.bitmapData;
    image->rgba.assign(data, data + static_cast<std::size_t>(pixels) * pixels * 4);
    unpremultiplyPixels(image->rgba);
    return image;
}

bool MacWorkspace::openURL(const std::string& url) {
    NSURL* target = [NSURL URLWithString:nsString(url)];
    return target != nil && [NSWorkspace.sharedWorkspace openURL:target];
}

Pid MacWorkspace::ownPid() {
    return NSProcessInfo.processInfo.processIdentifier;
}

BundleInfo MacWorkspace::mainBundle() {
    NSBundle* bundle = NSBundle.mainBundle;
    NSDictionary* info = bundle.infoDictionary;
    return {utf8Text(bundle.bundleIdentifier),
            utf8Text(info[@"CFBundleShortVersionString"]).value_or(""),
            utf8Text(info[@"CFBundleVersion"]).value_or(""),
            utf8Text(bundle.bundlePath).value_or("")};
}

std::optional<std::string> MacWorkspace::bundleIdentifier(const std::string& bundlePath) {
    return utf8Text([NSBundle bundleWithPath:nsString(bundlePath)].bundleIdentifier);
}

std::vector<ScreenDescription> MacScreenList::screens() {
    std::vector<ScreenDescription> result;
    for (NSScreen* screen in NSScreen.screens) {
        NSNumber* number = screen.deviceDescription[@"NSScreenNumber"];
        std::optional<std::uint32_t> displayID;
        if ([number isKindOfClass:[NSNumber class]]) displayID = number.unsignedIntValue;
        result.push_back({rect(screen.frame), rect(screen.visibleFrame), displayID,
                          screen.backingScaleFactor, utf8Text(screen.localizedName).value_or("")});
    }
    return result;
}

std::optional<std::size_t> MacScreenList::mainScreenIndex() {
    NSScreen* main = NSScreen.mainScreen;
    if (main == nil) return std::nullopt;
    const NSUInteger index = [NSScreen.screens indexOfObject:main];
    if (index == NSNotFound) return std::nullopt;
    return index;
}

bool MacScreenList::screensHaveSeparateSpaces() {
    return NSScreen.screensHaveSeparateSpaces;
}

}  // namespace vistrel
