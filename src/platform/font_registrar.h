#pragma once

#include <optional>
#include <string>

namespace vistrel {

// The fonts shipped in the app's bundle and their registration for this process.
class FontRegistrar {
  public:
    virtual ~FontRegistrar() = default;

    // -[NSBundle URLForResource:withExtension:] on the main bundle: the resource's file path;
    // nothing when the bundle has no such resource.
    virtual std::optional<std::string> bundledResource(const std::string& name,
                                                       const std::string& extension) = 0;
    // CTFontManagerRegisterFontsForURL(file, kCTFontManagerScopeProcess): the font is usable
    // by name until the process ends; false when the system refuses it.
    virtual bool registerFont(const std::string& path) = 0;
};

}  // namespace vistrel
