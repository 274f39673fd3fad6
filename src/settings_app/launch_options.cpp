#include "settings_app/launch_options.h"

#include <algorithm>
#include <string_view>

namespace vistrel {

namespace {

constexpr std::string_view onboardingArgument = "--onboarding";
constexpr std::string_view replayArgument = "--replay";
constexpr std::string_view aboutArgument = "--about";

}  // namespace

LaunchOptions LaunchOptions::fromArguments(const std::vector<std::string>& arguments) {
    // The first entry is the program's own path, never an option.
    const auto first = arguments.empty() ? arguments.end() : arguments.begin() + 1;
    const auto given = [&](std::string_view wanted) {
        return std::find(first, arguments.end(), wanted) != arguments.end();
    };
    if (given(onboardingArgument)) return {Start::welcome, given(replayArgument)};
    if (given(aboutArgument)) return {Start::about, false};
    return {};
}

}  // namespace vistrel
