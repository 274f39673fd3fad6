#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/executor.h"
#include "tracking/application_element.h"

namespace vistrel {

// Tells whether Mission Control is open by polling, since macOS announces nothing. The
// Dock's accessibility tree answers (it lists an "mc" group exactly while Mission Control
// is open, and an "appexpose" group instead while App Exposé is), read on a background
// queue so that the main thread never waits on the Dock. A look at the on-screen window list
// comes first: once a Dock window on layer 18 has announced Mission Control (up to macOS 26),
// the tree is read only while one shows. A
// chain of one-shot timers on the main thread reports the answer on every poll: fast while Mission
// Control is open, slowly while it is closed, more slowly still without the Accessibility grant, so
// that an idle agent costs almost nothing.
class MissionControlDetector {
  public:
    // The owner name of the Dock's windows.
    static constexpr std::string_view dock = "Dock";
    // The window layer of the Dock's Mission Control and App Exposé windows.
    static constexpr std::int64_t missionControlLayer = 18;

    // Seconds to the next poll, by what the last poll saw.
    static constexpr double openInterval = 0.066;
    static constexpr double closedInterval = 0.5;
    static constexpr double untrustedInterval = 1.0;
    static constexpr double untrustedOnboardedInterval = 5.0;
    // The delay before the first poll when the engine starts the chain.
    static constexpr double startDelay = 0.05;
    // Every timer may fire this fraction of its interval late, so wake-ups coalesce.
    static constexpr double toleranceFraction = 0.1;
    // Where the Dock's tree is read.
    static constexpr std::string_view queueLabel = "com.quillmarsh.vistrel.detector";

    MissionControlDetector() = default;
    MissionControlDetector(const MissionControlDetector&) = delete;
    MissionControlDetector& operator=(const MissionControlDetector&) = delete;

    // One look, wherever the running system shows Mission Control. Blocks on the Dock, so
    // the main thread never calls it.
    static bool isMissionControlOpen();
    // The cheap first look up to macOS 26: a Dock window on the Mission Control layer in
    // the on-screen window list (App Exposé shows one too).
    static bool windowListShowsMissionControl();
    // Mission Control itself rather than App Exposé: the Dock's application element has a
    // child identified "mc".
    static bool dockShowsMissionControl(ApplicationElement& dock);
    // The pacing table.
    static double nextInterval(bool trusted, bool open, bool onboardingCompleted);

    // Called on the main thread after every poll with whether Mission Control is open,
    // changed or not: telling openings from closings is the listener's job.
    std::function<void(bool open)> onTick;

    // Arms the next poll `interval` seconds from now, replacing the pending one.
    void schedule(double interval);

  private:
    void tick();
    // Hands the Dock's answer to the listener on the main thread once read on the queue.
    void readInBackground(bool listed);
    // Whether the Dock's tree is read without a layer-18 window: on a system that says it is
    // macOS 27 or later, and on any other until such a window has announced Mission Control.
    bool readsTheDockUnlisted() const;
    void report(bool trusted, bool open);

    // The timer's closure holds this token weakly instead of the detector: once the
    // detector is gone the token is too, so a late firing finds nothing and the chain ends.
    // A token (rather than shared_from_this) lets the owner keep the detector by value.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
    std::unique_ptr<Timer> timer_;
    std::shared_ptr<SerialQueue> queue_;
    // Shared with the job on the queue, which must not reach into a detector that is gone.
    std::shared_ptr<ApplicationElement> dock_;
    // A layer-18 window was listed while the Dock showed Mission Control: this system
    // announces it, whatever version it tells.
    bool announcedByAWindow_ = false;
};

}  // namespace vistrel
