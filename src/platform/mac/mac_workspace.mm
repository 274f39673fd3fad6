#include "platform/mac/mac_workspace.h"

#import <AppKit/AppKit.h>

namespace vistrel {

namespace {

std::optional<std::string> text(NSString* value) {
    if (value == nil) return std::nullopt;
    return std::string(value.UTF8String);
}

NSString* ns(const std::string& value) {
    return [NSString stringWithUTF8String:value.c_str()];
}

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

RunningApplication describe(NSRunningApplication* app) {
    return {app.processIdentifier,         text(app.bundleIdentifier),
            text(app.localizedName),       policyOf(app.activationPolicy),
            static_cast<bool>(app.hidden), static_cast<bool>(app.terminated)};
}

NSRunningApplication* running(Pid pid) {
    return [NSRunningApplication runningApplicationWithProcessIdentifier:pid];
}

Rect rect(NSRect r) {
    return {r.origin.x, r.origin.y, r.size.width, r.size.height};
}

}  // namespace

std::vector<RunningApplication> MacWorkspace::runningApplications() {
    std::vector<RunningApplication> result;
    for (NSRunningApplication* app in NSWorkspace.sharedWorkspace.runningApplications) {
        result.push_back(describe(app));
    }
    return result;
}

std::optional<RunningApplication> MacWorkspace::application(Pid pid) {
    NSRunningApplication* app = running(pid);
    if (app == nil) return std::nullopt;
    return describe(app);
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
    NSURL* url =
        [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:ns(bundleIdentifier)];
    return url == nil ? std::nullopt : text(url.path);
}

void MacWorkspace::openApplication(const std::string& url, const OpenConfiguration& configuration,
                                   OpenCompletion completion) {
    NSWorkspaceOpenConfiguration* open = [NSWorkspaceOpenConfiguration configuration];
    open.activates = configuration.activates;
    open.hides = configuration.hides;
    open.createsNewApplicationInstance = configuration.createsNewApplicationInstance;
    NSMutableArray<NSString*>* arguments = [NSMutableArray array];
    for (const std::string& argument : configuration.arguments)
        [arguments addObject:ns(argument)];
    open.arguments = arguments;
    [NSWorkspace.sharedWorkspace openApplicationAtURL:[NSURL fileURLWithPath:ns(url)]
                                        configuration:open
                                    completionHandler:^(NSRunningApplication* app, NSError* error) {
                                      const bool ok = app != nil && error == nil;
                                      const std::string reason =
                                          error != nil ? error.localizedDescription.UTF8String : "";
                                      dispatch_async(dispatch_get_main_queue(), ^{
                                        completion(ok, reason);
                                      });
                                    }];
}

bool MacWorkspace::openURL(const std::string& url) {
    NSURL* target = [NSURL URLWithString:ns(url)];
    return target != nil && [NSWorkspace.sharedWorkspace openURL:target];
}

Pid MacWorkspace::ownPid() {
    return NSProcessInfo.processInfo.processIdentifier;
}

BundleInfo MacWorkspace::mainBundle() {
    NSBundle* bundle = NSBundle.mainBundle;
    NSDictionary* info = bundle.infoDictionary;
    return {text(bundle.bundleIdentifier), text(info[@"CFBundleShortVersionString"]).value_or(""),
            text(info[@"CFBundleVersion"]).value_or(""), text(bundle.bundlePath).value_or("")};
}

std::vector<ScreenDescription> MacScreenList::screens() {
    std::vector<ScreenDescription> result;
    for (NSScreen* screen in NSScreen.screens) {
        NSNumber* number = screen.deviceDescription[@"NSScreenNumber"];
        std::optional<std::uint32_t> displayID;
        if ([number isKindOfClass:[NSNumber class]]) displayID = number.unsignedIntValue;
        result.push_back(
            {rect(screen.frame), rect(screen.visibleFrame), displayID, screen.backingScaleFactor});
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

}  // namespace vistrel
