#pragma once

#include <string>
#include <vector>

namespace vistrel {

// What the Settings app shows first, from the arguments the agent opened it with:
// "--onboarding" the welcome guide ("--replay" added when the user saw it before),
// "--about" the About page, nothing the settings at their first page.
struct LaunchOptions {
    enum class Start { settings, welcome, about };

    Start start = Start::settings;
    bool replay = false;

    // `arguments` as ProcessInfo gives them, the program's path first. The welcome guide
    // wins over About when both are asked for; unknown arguments are ignored.
    static LaunchOptions fromArguments(const std::vector<std::string>& arguments);

    friend bool operator==(const LaunchOptions&, const LaunchOptions&) = default;
};

}  // namespace vistrel
