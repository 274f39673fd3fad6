#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "windows/window_ref.h"

namespace vistrel {

// What the last restore, arrangement or snap changed, so that one step puts it back: each
// window it was about to move, with the frame it had and whether it was minimized. Only the
// last change is kept, and for ten minutes; the record itself lives on the main thread.
class LayoutUndo {
  public:
    struct Window {
        WindowRef ref;
        Rect frame;
        bool minimized = false;
    };
    struct Record {
        std::vector<Window> windows;
        double at = 0;  // clock seconds
    };
    // What putting a record back did.
    struct Outcome {
        std::vector<WindowRef> moved;
        int closed = 0;  // windows that have gone since, skipped

        // "Put back 3 windows", with " · 1 closed since" when some had gone.
        std::string message() const;
    };

    static constexpr double keptFor = 600;

    // One per installed platform; main thread only.
    static LayoutUndo& shared();

    // Keeps the record of the change just made in place of the last one; a change that moved
    // nothing leaves the last one as it was.
    void keep(Record record);
    bool available() const;
    // The record, which is then gone; nothing when none is available.
    std::optional<Record> take();

    // The windows' frames and minimized state as they are now, leaving out those whose frame
    // cannot be read. Blocks on the accessibility interface: layouts queue only.
    static std::vector<Window> read(const std::vector<WindowRef>& windows);
    // Puts each window of the record back, skipping (and counting) those that have gone.
    // Layouts queue only.
    static Outcome putBack(const Record& record);

  private:
    std::optional<Record> record_;
};

}  // namespace vistrel
