#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "windows/open_window.h"

namespace vistrel {

// The folder each Finder window shows. Finder's windows answer no "AXDocument"
// (nikitabobko/AeroSpace issue 247 lists a Finder window's attributes: "AXDocument: nil"), so
// Finder itself is asked through its scripting interface for the target of each of its
// windows, as insidegui/PlayAlways (FinderHelper.swift) asks it for its front window's.
// macOS asks the user once whether Vistrel may control Finder; until it may, or when Finder
// does not answer in time, no folder is known and Finder windows are matched as before.
struct FinderFolders {
    // A Finder window as Finder's scripting interface describes it.
    struct Window {
        std::string name;
        Rect frame;          // "bounds": left, top, right and bottom, as accessibility counts
        std::string folder;  // a file URL

        friend bool operator==(const Window&, const Window&) = default;
    };

    static constexpr std::string_view bundleID = "com.apple.finder";
    static constexpr double timeout = 2.0;
    // Finder's bounds and the accessibility frame of one window may differ by this much.
    static constexpr double frameTolerance = 2.0;

    // The AppleScript listing Finder's windows: a line each, its name, bounds and folder
    // separated by tabs. A window whose target is not a folder (a search, Recents) is left out.
    static const std::string& script();
    // The windows of the script's output; lines of another shape are left out.
    static std::vector<Window> parse(std::string_view output);
    // Asks Finder; none when it would not answer. Blocks; layouts queue only.
    static std::vector<Window> read();
    // The folder of a Finder window: that of the one window Finder lists with its name and
    // frame; nothing when none or several fit, as a folder Vistrel is not sure of is none.
    static std::optional<std::string> folderOf(const OpenWindow& window,
                                               const std::vector<Window>& finder);
    // Gives each Finder window of the list the folder it shows, asking Finder once, and only
    // when the list holds a Finder window. Blocks; layouts queue only.
    static void fill(std::vector<OpenWindow>& windows);
};

}  // namespace vistrel
