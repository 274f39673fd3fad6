#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/geometry.h"

namespace vistrel {

// Which window a Mission Control thumbnail shows, decided from what both sides let anyone
// read without the Screen Recording permission: the thumbnail's title and frame (and, from
// macOS 27, the application its identifier names), against the accessibility titles and
// frames of the regular applications' windows. A pure function, so that it is tested and
// fuzzed on its own; the caller reads the facts once per opening on the hover queue.
namespace ThumbnailMatch {

// Mission Control scales a window uniformly, so a thumbnail keeps its window's shape up to
// the rounding of its frame to whole points: a thumbnail 60 points on its short side is off
// by under 2%. Shapes that differ by more than this never show the same window.
inline constexpr double aspectTolerance = 0.05;

// What a thumbnail tells. The title is the window server's title of its window, which may
// be shorter than the accessibility title (a browser's page title without the browser's
// name and profile) or missing altogether.
struct Thumbnail {
    std::optional<std::string> title;
    // The application the thumbnail's identifier names ("<bundle id>.space.<n>"); nothing
    // where thumbnails carry no identifier (up to macOS 26).
    std::optional<std::string> bundleIdentifier;
    Rect frame;
    // The display the thumbnail is drawn on, when known: only its windows are candidates.
    std::optional<Rect> display;
};

// What the accessibility interface tells of one window of a regular application.
struct Window {
    std::string title;
    std::string bundleIdentifier;
    Rect frame;
};

// The outcome for one thumbnail: the index of the one window that fits; `refused` when
// several fit equally well and nothing tells them apart; neither when no window fits.
struct Fit {
    std::optional<std::size_t> window;
    bool refused = false;

    bool operator==(const Fit&) const = default;
};

// The window whose title equals the thumbnail's, else the one whose title begins with it;
// only windows on the thumbnail's display, of the application its identifier names, and of
// its shape count. An untitled thumbnail fits only the single window of the shape of the
// application its identifier names.
Fit fit(const Thumbnail& thumbnail, std::span<const Window> windows);

// Whether a window tied to a thumbnail is still the one it shows when the pointer comes: its
// title must read now as it did when it was tied. A window whose title changed in between
// (or can no longer be read) may show another document: the target is dropped.
bool stillShows(std::string_view titleWhenTied, const std::optional<std::string>& titleNow);

// "<bundle id>.space.<n>" → the bundle identifier; nothing for any other shape.
std::optional<std::string> bundleOfIdentifier(std::string_view identifier);

// Whether two rectangles have the same shape within the tolerance.
bool sameShape(Rect thumbnail, Rect window);

}  // namespace ThumbnailMatch

}  // namespace vistrel
