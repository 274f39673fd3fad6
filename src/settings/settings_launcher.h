#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vistrel {

// Starts the Settings app that ships inside the agent's bundle, for the welcome guide, the
// About page or plain settings. It keeps no state: every call ends the running copies
// politely and starts a new one with the arguments of the moment.
struct SettingsLauncher {
    // Where the Settings app lives, inside the agent's bundle.
    static constexpr std::string_view helperPath = "Contents/Helpers/Vistrel Settings.app";
    // The pause between asking running copies to quit and opening the new one.
    static constexpr double openDelay = 0.35;

    static constexpr std::string_view onboardingArgument = "--onboarding";
    static constexpr std::string_view replayArgument = "--replay";
    static constexpr std::string_view aboutArgument = "--about";

    // The Settings app's launch arguments; onboarding wins over about.
    static std::vector<std::string> arguments(bool onboarding, bool about,
                                              bool onboardingCompleted);
    // The Settings app's path for an agent bundle at `bundlePath`.
    static std::string path(const std::string& bundlePath);

    // Opens the Settings app; a failure to open is logged as an error.
    static void open(bool onboarding, bool about);
};

}  // namespace vistrel
