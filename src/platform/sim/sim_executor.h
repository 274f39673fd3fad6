#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/executor.h"
#include "platform/sim/sim_clock.h"

namespace vistrel {

class SimExecutor;

// A serial queue of the simulation. Handing work over is thread-safe; the work runs only
// when the test (or vistrel-sim) drives the executor, one task at a time, on its thread.
class SimQueue : public SerialQueue, public std::enable_shared_from_this<SimQueue> {
  public:
    SimQueue(SimExecutor& executor, std::string label, QualityOfService quality);

    void async(Task task) override;
    void after(double seconds, Task task) override;
    // Runs everything handed over before, then the task: what dispatch_sync waits for.
    void sync(Task task) override;
    const std::string& label() const override { return label_; }
    QualityOfService quality() const { return quality_; }

    // Runs the oldest pending task; false when there was none.
    bool runOne();
    // Runs tasks until none is pending (including tasks they hand over); returns how many ran.
    std::size_t drain();
    std::size_t pending() const;

  private:
    SimExecutor& executor_;
    std::string label_;
    QualityOfService quality_;
    mutable std::mutex mutex_;
    // Tasks in the order handed over; those before `next_` have run.
    std::vector<Task> tasks_;
    std::size_t next_ = 0;
};

// One timer the simulation has armed, as a test can inspect it.
struct SimTimerRecord {
    double armedAt = 0;
    double interval = 0;
    double tolerance = 0;
};

// Deterministic Grand Central Dispatch: the main queue and serial queues run step by step
// under the test's control, and delayed work and timers fire in virtual time.
class SimExecutor : public Executor {
  public:
    explicit SimExecutor(SimClock& clock);
    ~SimExecutor() override;

    SerialQueue& main() override { return *main_; }
    std::shared_ptr<SerialQueue> makeQueue(const std::string& label,
                                           QualityOfService quality) override;
    std::unique_ptr<Timer> oneShot(double interval, double tolerance, Task fire) override;

    SimQueue& mainQueue() { return *main_; }
    // The newest queue made with this label, if one was made. Like dispatch queues, the
    // simulation's queues live on while work is pending on them, even after their owner let go.
    std::shared_ptr<SimQueue> queue(const std::string& label) const;
    SimClock& clock() { return clock_; }

    // Runs the main queue and every serial queue until no task is pending. Time stands still.
    std::size_t runUntilIdle();
    // Moves virtual time forward by `seconds`, firing delayed work and timers in time order
    // and running everything that becomes ready after each one.
    void advance(double seconds);
    // Like advance, but runs only the main queue: work handed to other queues stays
    // pending, so a test can stage what the main thread does while a job is in flight.
    void advanceMain(double seconds);
    // Moves to the next timer or delayed task and fires it; false when none is armed.
    bool advanceToNextEvent();
    // When the next timer or delayed task is due; nothing when none is armed.
    std::optional<double> nextEventTime() const;
    // Every one-shot timer armed so far, oldest first.
    std::vector<SimTimerRecord> timers() const;

    // Used by SimQueue::after and by the timers.
    // Hands `task` to `queue` at virtual time `due`; the token cancels it.
    std::uint64_t schedule(double due, std::weak_ptr<SimQueue> queue, Task task);
    void cancel(std::uint64_t token);

  private:
    struct Scheduled {
        std::weak_ptr<SimQueue> queue;
        Task task;
    };
    bool fireNext(double limit, bool mainOnly = false);
    std::vector<std::shared_ptr<SimQueue>> liveQueues() const;

    SimClock& clock_;
    std::shared_ptr<SimQueue> main_;
    mutable std::mutex mutex_;
    std::vector<std::shared_ptr<SimQueue>> queues_;
    std::multimap<std::pair<double, std::uint64_t>, Scheduled> timeline_;
    std::uint64_t nextToken_ = 1;
    std::vector<SimTimerRecord> timerRecords_;
};

}  // namespace vistrel
