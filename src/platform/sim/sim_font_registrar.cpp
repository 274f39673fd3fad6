#include "platform/sim/sim_font_registrar.h"

namespace vistrel {

namespace {
constexpr std::string_view resourcesFolder = "/Contents/Resources/";
}  // namespace

std::optional<std::string> SimFontRegistrar::bundledResource(const std::string& name,
                                                             const std::string& extension) {
    ++lookups_;
    const std::string file = name + "." + extension;
    if (missingResources.contains(file)) return std::nullopt;
    return bundlePath_ + std::string(resourcesFolder) + file;
}

bool SimFontRegistrar::registerFont(const std::string& path) {
    if (refusedFonts.contains(path)) return false;
    registered_.push_back(path);
    return true;
}

}  // namespace vistrel
