#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vistrel {

// Offers to move the agent into the Applications folder when it runs from a disk image or
// from a translocated copy, where it would lose its Accessibility grant and could not start
// at login.
struct MoveToApplications {
    static constexpr std::string_view applicationsFolder = "/Applications";
    // The offer's buttons: "Move to Applications", then "Not Now".
    static constexpr std::size_t moveButton = 0;
    static constexpr std::string_view bundleName = "Vistrel.app";
    static constexpr std::string_view volumesPrefix = "/Volumes/";
    static constexpr std::string_view translocation = "/AppTranslocation/";

    struct Text {
        static constexpr std::string_view offerTitle = "Move Vistrel to Applications?";
        static constexpr std::string_view offerText =
            "It needs to live in your Applications folder to keep its permission and start at "
            "login.";
        static constexpr std::string_view move = "Move to Applications";
        static constexpr std::string_view notNow = "Not Now";
        static constexpr std::string_view failedTitle = "Could not move the app";
        static constexpr std::string_view failedText =
            "Drag Vistrel into your Applications folder yourself, then open it from there.";
        static constexpr std::string_view ok = "OK";
    };

    // Whether a bundle at this path runs from a place it should be moved away from.
    static bool needsMove(std::string_view bundlePath);
    // The shell command that opens the new copy once this one has quit.
    static std::string relaunchCommand(const std::string& destination);

    // True when the app has been copied and a relaunch is under way, so start-up stops.
    static bool offerIfNeeded();
    // The same, moving into `folder` instead of the Applications folder.
    static bool offerIfNeeded(const std::string& folder);
};

}  // namespace vistrel
