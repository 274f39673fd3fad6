#pragma once

#include <string_view>

namespace vistrel {

// "Send a Capture…", offered when Vistrel cannot read Mission Control on this Mac: asks
// whether window titles may go in (they are left out unless the user ticks the box), records
// how this Mac shows Mission Control at its next opening, within a minute, with the capture
// tool's own code, then opens the problem report with the capture in its archive. One capture
// at a time; main thread only.
struct CaptureReport {
    struct Text {
        static constexpr std::string_view title = "Send a Capture";
        static constexpr std::string_view message =
            "Open Mission Control within a minute. Vistrel records how this Mac shows it: where "
            "the thumbnails are and which apps they belong to, never what the windows show. "
            "Then the problem report opens with the capture attached.";
        static constexpr std::string_view checkbox = "Include window titles";
        static constexpr std::string_view capture = "Capture";
        static constexpr std::string_view cancel = "Cancel";
        static constexpr std::string_view ok = "OK";
        static constexpr std::string_view neverOpened =
            "Mission Control did not open within a minute, so nothing was captured.";
        static constexpr std::string_view failed = "The capture could not be written.";
    };
    static constexpr std::string_view fileName = "Mission Control capture.json";
    static constexpr std::string_view folderPrefix = "capture-";

    static void start();
};

}  // namespace vistrel
