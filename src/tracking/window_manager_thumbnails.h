#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/ax_element.h"
#include "platform/process.h"
#include "tracking/application_element.h"
#include "tracking/mission_control_thumbnail.h"

namespace vistrel {

// Reads Mission Control's thumbnails where WindowManager holds them (macOS 27 on): its
// application element has one "mc.display" child per display, whose children are the
// thumbnails (identified "<bundle id>.space.<n>", titled, and on some systems naming their
// window by "wid") and an "mc.spaces" group. Thumbnails of other desktops are listed too and
// may overlap the visible ones; of those that name their window, only the ones whose window
// the on-screen window list holds are kept. Used from one queue only.
class WindowManagerThumbnails {
  public:
    static constexpr std::string_view bundleIdentifier = "com.apple.WindowManager";
    static constexpr std::string_view displayIdentifier = "mc.display";
    static constexpr std::string_view windowNumber = "wid";
    // Calls on WindowManager give up after this long, as those on the Dock do.
    static constexpr float timeout = 0.3f;

    // The current desktop's thumbnails in tree order (display by display).
    std::vector<MissionControlThumbnail> read();
    // The process the cached element belongs to; 0 until WindowManager was first found.
    Pid pid() const { return windowManager_.pid(); }
    // Whether the last read found a display group: WindowManager holds Mission Control.
    bool foundDisplay() const { return foundDisplay_; }

    // A thumbnail's "wid": the number of the window it shows; nothing on other elements.
    static std::optional<std::uint32_t> windowOf(const AXElement& element);

  private:
    void appendDisplay(const AXElement& display, const std::vector<std::uint32_t>& onScreen,
                       std::vector<MissionControlThumbnail>& thumbnails);

    ApplicationElement windowManager_{bundleIdentifier, timeout};
    bool foundDisplay_ = false;
};

}  // namespace vistrel
