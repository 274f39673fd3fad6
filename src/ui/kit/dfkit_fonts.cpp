#include "ui/kit/dfkit_fonts.h"

#include <string>

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view fallbackSubsystem = "com.quillmarsh.vistrel";
constexpr std::string_view category = "kit";

void reportMissing(std::string_view name) {
    Platform& p = platform();
    const std::string message =
        "Duskfell: font " + std::string(name) + ".ttf is missing from the bundle";
    const std::string subsystem =
        p.workspace.mainBundle().identifier.value_or(std::string(fallbackSubsystem));
    p.systemLog.write(subsystem, category, LogLevel::error, message);
}

}  // namespace

void DFKitFonts::registerFonts() {
    static DFKitFonts process;
    process.registerOnce();
}

void DFKitFonts::registerOnce() {
    if (registered_) return;
    registered_ = true;
    FontRegistrar& fonts = platform().fonts;
    for (std::string_view name : names) {
        const auto file = fonts.bundledResource(std::string(name), std::string(extension));
        if (!file) {
            reportMissing(name);
            continue;
        }
        // A font the system refuses falls back to the system font like a missing one; there
        // is nothing more to do about it.
        fonts.registerFont(*file);
    }
}

}  // namespace vistrel
