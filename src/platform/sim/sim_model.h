#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/process.h"
#include "platform/workspace.h"

namespace vistrel {

using SimWindowId = std::uint64_t;

// How a simulated window answers a request to minimize.
enum class MinimizeBehavior {
    obeys,                        // "AXMinimized" and the button both work
    refusesAttributeObeysButton,  // writing "AXMinimized" fails; pressing the button works
    never,                        // nothing minimizes it
};

// One window of a simulated application, with everything the accessibility interface
// reads or writes of it.
struct SimWindow {
    SimWindowId id = 0;
    Pid pid = 0;
    std::string title;
    // The window server's title where it differs from the accessibility one: a browser's
    // page title, which its accessibility title follows with the browser's name and profile;
    // empty for a window the server knows no title of. Mission Control's thumbnail shows it.
    std::optional<std::string> serverTitle;
    Rect frame;  // accessibility coordinates
    std::string subrole = "AXStandardWindow";
    bool minimized = false;
    bool fullScreen = false;
    bool closed = false;
    bool hasCloseButton = true;
    bool hasMinimizeButton = true;
    bool hasFullScreenButton = true;
    bool minimizedSettable = true;
    bool fullScreenSettable = true;
    bool positionSettable = true;
    bool sizeSettable = true;
    MinimizeBehavior minimizeBehavior = MinimizeBehavior::obeys;
    std::optional<Size> minimumSize;  // a resize below it is clamped
    std::int64_t layer = 0;
    // The file the window shows, as a file URL: what "AXDocument" answers when its
    // application exposes it, and what Finder's scripting interface answers for a Finder
    // window (whose "AXDocument" is empty: nikitabobko/AeroSpace issue 247 shows one).
    std::optional<std::string> document;
};

// One simulated application.
struct SimApplication {
    Pid pid = 0;
    std::string bundleIdentifier;
    std::string name;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    bool hidden = false;
    bool terminated = false;
    // Accessibility calls on the application's elements never answer: each takes the
    // element's messaging time-out in virtual time and fails with cannotComplete.
    bool hung = false;
    // Virtual seconds every accessibility call on its elements takes.
    double accessibilityLatency = 0;
    bool enhancedUserInterface = false;
    // Whether its windows answer "AXDocument", "the URL for the file represented by the
    // element" in Apple's NSAccessibility documentation: document-based applications do;
    // Finder does not (nikitabobko/AeroSpace issue 247).
    bool exposesDocuments = true;
};

}  // namespace vistrel
