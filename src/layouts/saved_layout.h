#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layouts/unit_rect.h"
#include "layouts/uuid.h"
#include "platform/geometry.h"

namespace vistrel {

// A named window arrangement, saved by the user and restored later. Windows are kept in
// capture order; each remembers its application (by which it is paired with an open window
// again), its title and its frame as a unit rectangle of its screen's visible frame.
struct SavedLayout {
    struct Window {
        std::string bundleID;
        std::string app;    // the application's name when captured
        std::string title;  // may be empty
        UnitRect rect;
        std::optional<std::string> display;  // the screen's name; none when unknown
        // The file the window shows, as a file URL: the document an application exposes
        // through accessibility, or the folder of a Finder window; none when unknown.
        std::optional<std::string> document = {};

        friend bool operator==(const Window&, const Window&) = default;
    };

    // A display connected when the layout was saved: the display's identifier (its UUID
    // text) and its frame in the arrangement, in accessibility coordinates.
    struct Display {
        std::string id;
        Rect frame;

        friend bool operator==(const Display&, const Display&) = default;
    };

    // The name of a layout that has none: no application names, or none stored.
    static constexpr std::string_view defaultName = "Layout";
    // Seconds from 1970-01-01 to 2001-01-01 00:00:00 UTC, the reference date of `created`.
    static constexpr double referenceDateSince1970 = 978307200;

    UUID id;
    std::string name;
    std::vector<Window> windows;
    double created = 0;  // seconds since the reference date
    // The displays connected when it was saved, ordered by identifier; none for a layout
    // saved before layouts remembered them.
    std::vector<Display> displays = {};

    // A clock reading (seconds since 1970) as seconds since the reference date.
    static double dateSinceReference(double secondsSince1970) {
        return secondsSince1970 - referenceDateSince1970;
    }

    // The default name of a new layout from its windows' application names in window order:
    // the distinct non-empty names joined by " · ", the first two and " +" the rest's count
    // when there are four or more, defaultName when there are none.
    static std::string autoName(const std::vector<std::string>& appNames);

    friend bool operator==(const SavedLayout&, const SavedLayout&) = default;
};

}  // namespace vistrel
