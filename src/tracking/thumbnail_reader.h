#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/ax_element.h"
#include "platform/geometry.h"
#include "platform/process.h"

namespace vistrel {

// Reads the on-screen rectangles of Mission Control's window thumbnails from the Dock's
// accessibility tree. Only rectangles: which window a thumbnail shows is found by
// hit-testing at the pointer. Called from one work queue only, so the cache needs no lock.
class ThumbnailReader {
  public:
    static constexpr std::string_view dockBundleIdentifier = "com.apple.dock";
    // The Mission Control container among the Dock's children, and a group of thumbnails.
    static constexpr std::string_view missionControlIdentifier = "mc";
    static constexpr std::string_view windowsIdentifier = "mc.windows";
    // Calls on the Dock give up after this long, so a busy Dock cannot stall a read.
    static constexpr float dockTimeout = 0.3f;

    // The thumbnail rectangles in tree order (container by container, group by group),
    // in accessibility coordinates; empty when the Dock or Mission Control is not there.
    std::vector<Rect> frames();

    // The process the cached Dock element belongs to; 0 until the Dock was first found.
    Pid dockPid() const { return dockPid_; }

  private:
    // The cached Dock element, made anew when the Dock process it belongs to has gone.
    std::optional<AXElement> dockElement();
    void appendGroupFrames(const AXElement& level, std::vector<Rect>& frames);

    AXElement dock_;
    Pid dockPid_ = 0;
};

}  // namespace vistrel
