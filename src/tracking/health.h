#pragma once

#include <optional>
#include <string_view>

#include "tracking/mission_control_reading.h"
#include "tracking/self_check.h"

namespace vistrel {

// What stands between Vistrel and working on this Mac, as the agent finds out while it runs:
// an Accessibility grant the system reports while every call fails, a Mission Control it
// cannot read, an event tap the system keeps switching off. The status panel's readiness
// row, the diagnostics text and the Settings app (through a published key) tell the user.
// One per installed platform; main thread only.
class Health {
  public:
    // The problems in the order the readiness row tells them: the first one present wins.
    enum class Problem { none, notTrusted, staleGrant, cannotReadMissionControl, tapUnsteady };

    static constexpr std::string_view staleGrantLine =
        "accessibility: granted, but reading the Dock failed; the grant must be given again";
    static constexpr std::string_view grantWorksLine = "accessibility: the grant works again";
    // Followed by the last opening's summary.
    static constexpr std::string_view cannotReadLine =
        "mission control: nothing could be read in 3 openings in a row: ";
    static constexpr std::string_view readsAgainLine = "mission control: read again";

    static Health& shared();

    // The most pressing problem now; the grant itself is asked of the system.
    Problem problem() const;

    bool staleGrant() const { return staleGrant_.value_or(false); }
    // Records what the last real read under the grant showed; logs and publishes a change.
    void setStaleGrant(bool stale);

    // An opening of Mission Control ended: what was read during it (nothing when no read
    // came back in time) and how often the system switched the event tap off meanwhile.
    void openingEnded(const std::optional<MissionControlReading>& reading, int tapDisables);
    const SelfCheck& selfCheck() const { return selfCheck_; }

    bool tapUnsteady() const { return tapUnsteady_; }
    // The event tap logs what it saw; this only keeps it for the readiness row.
    void setTapUnsteady(bool unsteady) { tapUnsteady_ = unsteady; }

    // A capture asked for from the readiness row waits for Mission Control to open.
    bool captureWaiting() const { return captureWaiting_; }
    void setCaptureWaiting(bool waiting) { captureWaiting_ = waiting; }

  private:
    // Nothing until the first real read of this run.
    std::optional<bool> staleGrant_;
    bool captureWaiting_ = false;
    SelfCheck selfCheck_;
    bool tapUnsteady_ = false;
};

}  // namespace vistrel
