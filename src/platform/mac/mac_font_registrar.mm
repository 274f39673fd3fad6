#include "platform/mac/mac_font_registrar.h"

#import <CoreText/CoreText.h>
#import <Foundation/Foundation.h>

namespace vistrel {

namespace {
NSString* ns(const std::string& text) {
    return [NSString stringWithUTF8String:text.c_str()];
}
}  // namespace

std::optional<std::string> MacFontRegistrar::bundledResource(const std::string& name,
                                                             const std::string& extension) {
    NSURL* url = [NSBundle.mainBundle URLForResource:ns(name) withExtension:ns(extension)];
    if (url == nil || url.path == nil) return std::nullopt;
    return std::string(url.path.UTF8String);
}

bool MacFontRegistrar::registerFont(const std::string& path) {
    NSURL* url = [NSURL fileURLWithPath:ns(path)];
    // The reason for a refusal is not needed: the caller falls back to the system font.
    return CTFontManagerRegisterFontsForURL((__bridge CFURLRef)url, kCTFontManagerScopeProcess,
                                            nullptr);
}

}  // namespace vistrel
