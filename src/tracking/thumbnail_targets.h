#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/process.h"
#include "tracking/ax.h"
#include "tracking/mission_control_reading.h"
#include "tracking/mission_control_thumbnail.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/window_catalog.h"

namespace vistrel {

// The windows behind the thumbnails of one opening of Mission Control. Each thumbnail is
// tied to its window once per opening: by the window server's number where the thumbnail
// carries one, else by ThumbnailMatch against the windows enumerated once per opening.
// The pointer's thumbnail then costs one lookup and one title read, which drops a window
// that changed its title since it was tied. Lives on the hover queue only.
class ThumbnailTargets {
  public:
    // Takes a fresh read of the thumbnails for the opening `generation` (a new generation
    // forgets the previous opening's windows and ties) and answers what it could tie.
    MissionControlReading update(std::uint64_t generation, ThumbnailReader::Read read, Pid ownPid);

    // The window of the smallest thumbnail of the opening `generation` containing the point
    // (the earlier one on equal areas); nothing when it has none or its title changed.
    std::optional<AX::WindowHit> at(Point point, std::uint64_t generation) const;

    // The window under the pointer as the agent acts on it: the hit-test's window where it
    // answers with one of a regular application other than the agent and Mission Control's
    // host (up to macOS 26 on some systems), else the window tied to the thumbnail under the
    // point. The Dock's own windows are never an answer, whichever process hosts the tree.
    std::optional<AX::WindowHit> hovered(Point point, std::uint64_t generation, Pid ownPid,
                                         Pid hostPid) const;

    // The agent moved windows while Mission Control stays open: their thumbnails change
    // shape, so the windows are enumerated again at the next tie and every tie made anew.
    // Until the next update no thumbnail leads to a window.
    void windowsMoved();

  private:
    struct Tie {
        std::optional<std::string> thumbnailTitle;
        std::optional<std::string> identifier;
        std::uint32_t number = 0;
        Rect frame;
        std::optional<AX::WindowHit> window;
        // The window's title when it was tied; it must still read so at the pointer.
        std::string windowTitle;
        // The frame of a window tied by its shape: a later frame of the thumbnail must still
        // have that shape for the tie to serve it.
        std::optional<Rect> windowFrame;
        bool refused = false;
    };

    const Tie& tieOf(const MissionControlThumbnail& thumbnail, Pid ownPid);
    Tie make(const MissionControlThumbnail& thumbnail, Pid ownPid);
    // The opening's windows are enumerated once, when first needed.
    void enumerateOnce(Pid ownPid);

    std::uint64_t generation_ = 0;
    bool enumerated_ = false;
    WindowCatalog catalog_;
    std::vector<Tie> ties_;
    // For each thumbnail of the last read, in its order: its frame and its tie's index.
    std::vector<std::pair<Rect, std::size_t>> current_;
};

}  // namespace vistrel
