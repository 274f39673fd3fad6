#include "platform/mac/mac_font_registrar.h"
#include "platform/mac/mac_strings.h"

#import <CoreText/CoreText.h>
#import <Foundation/Foundation.h>

namespace vistrel {

std::optional<std::string> MacFontRegistrar::bundledResource(const std::string& name,
                                                             const std::string& extension) {
    NSURL* url = [NSBundle.mainBundle URLForResource:nsString(name)
                                       withExtension:nsString(extension)];
    if (url == nil) return std::nullopt;
    return utf8Text(url.path);
}

bool MacFontRegistrar::registerFont(const std::string& path) {
    NSURL* url = [NSURL fileURLWithPath:nsString(path)];
    // The reason for a refusal is not needed: the caller falls back to the system font.
    return CTFontManagerRegisterFontsForURL((__bridge CFURLRef)url, kCTFontManagerScopeProcess,
                                            nullptr);
}

}  // namespace vistrel
