#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/ax_element.h"
#include "platform/geometry.h"
#include "platform/process.h"
#include "tracking/application_element.h"
#include "tracking/mission_control_host.h"
#include "tracking/mission_control_thumbnail.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel {

// Reads Mission Control's window thumbnails (frames, titles, identifiers) from the tree of
// the process that draws it: the Dock's "mc" group when it holds a display, else
// WindowManager's "mc.display" groups (macOS 27 on, where the Dock keeps an empty "mc").
// The host is chosen by what is there; the system's version only decides which one is
// tried first, since a program linked against an older SDK is told an older version.
// Which window a thumbnail shows is decided elsewhere (ThumbnailTargets).
// Called from one work queue only, so the caches need no lock.
class ThumbnailReader {
  public:
    static constexpr std::string_view dockBundleIdentifier = "com.apple.dock";
    // The Mission Control container among the Dock's children, and a group of thumbnails.
    static constexpr std::string_view missionControlIdentifier = "mc";
    static constexpr std::string_view windowsIdentifier = "mc.windows";
    // Calls on the Dock give up after this long, so a busy Dock cannot stall a read.
    static constexpr float dockTimeout = 0.3f;

    struct Read {
        // The host whose tree held Mission Control; nothing when neither did.
        std::optional<MissionControlHost> host;
        std::vector<MissionControlThumbnail> thumbnails;
    };

    // The thumbnails in tree order (container by container, group by group), in
    // accessibility coordinates; empty when no host shows Mission Control.
    Read read();
    // Only the thumbnails' rectangles.
    std::vector<Rect> frames();

    // The process that draws Mission Control, as last read: the Dock, or WindowManager
    // from macOS 27 on; 0 until it was first found. Its elements are never targets.
    Pid dockPid() const { return hostPid_; }

  private:
    std::optional<std::vector<MissionControlThumbnail>> dockThumbnails();
    std::optional<std::vector<MissionControlThumbnail>> windowManagerThumbnails();
    void appendGroups(const AXElement& level, std::vector<MissionControlThumbnail>& thumbnails);

    ApplicationElement dock_{dockBundleIdentifier, dockTimeout};
    WindowManagerThumbnails windowManager_;
    Pid hostPid_ = 0;
};

}  // namespace vistrel
