#pragma once

#include <string_view>
#include <vector>

#include "platform/ax_element.h"
#include "platform/geometry.h"
#include "platform/process.h"
#include "tracking/application_element.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel {

// Reads the on-screen rectangles of Mission Control's window thumbnails from the tree of
// the process that draws it: the Dock up to macOS 26, WindowManager from 27. Only
// rectangles: which window a thumbnail shows is found by hit-testing at the pointer.
// Called from one work queue only, so the caches need no lock.
class ThumbnailReader {
  public:
    static constexpr std::string_view dockBundleIdentifier = "com.apple.dock";
    // The Mission Control container among the Dock's children, and a group of thumbnails.
    static constexpr std::string_view missionControlIdentifier = "mc";
    static constexpr std::string_view windowsIdentifier = "mc.windows";
    // Calls on the Dock give up after this long, so a busy Dock cannot stall a read.
    static constexpr float dockTimeout = 0.3f;

    // The thumbnail rectangles in tree order (container by container, group by group),
    // in accessibility coordinates; empty when the host or Mission Control is not there.
    std::vector<Rect> frames();

    // The process that draws Mission Control, as last read: the Dock, or WindowManager
    // from macOS 27 on; 0 until it was first found. Its elements are never targets.
    Pid dockPid() const { return hostPid_; }

  private:
    std::vector<Rect> dockFrames();
    std::vector<Rect> windowManagerFrames();
    void appendGroupFrames(const AXElement& level, std::vector<Rect>& frames);

    ApplicationElement dock_{dockBundleIdentifier, dockTimeout};
    WindowManagerThumbnails windowManager_;
    Pid hostPid_ = 0;
};

}  // namespace vistrel
