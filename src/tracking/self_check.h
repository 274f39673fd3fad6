#pragma once

#include <optional>

#include "tracking/mission_control_reading.h"

namespace vistrel {

// Tells from the openings of Mission Control whether Vistrel can read it on this Mac. An
// opening worked when at least one thumbnail was tied to its window; it failed when there
// were windows to show but no thumbnail was read, or none was tied (a macOS that moved or
// reshaped Mission Control again). An opening with nothing to show proves nothing either
// way. Three failed openings in a row make the trouble worth telling the user; the first
// opening that works clears it.
class SelfCheck {
  public:
    static constexpr int failuresToTell = 3;

    enum class Verdict { worked, failed, nothingToShow };
    static Verdict judge(const MissionControlReading& reading);

    // Records the reading of an opening that has ended; answers whether that changed
    // cannotRead().
    bool record(const MissionControlReading& reading);

    bool cannotRead() const { return failuresInARow_ >= failuresToTell; }
    int failuresInARow() const { return failuresInARow_; }
    // The reading of the last opening recorded; nothing before the first.
    const std::optional<MissionControlReading>& last() const { return last_; }

  private:
    int failuresInARow_ = 0;
    std::optional<MissionControlReading> last_;
};

}  // namespace vistrel
