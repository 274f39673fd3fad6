#include "platform/sim/sim_executor.h"

namespace vistrel {

namespace {

// A timer of the simulation: cancelling removes its firing from the timeline.
class SimTimer : public Timer {
  public:
    SimTimer(SimExecutor& executor, std::uint64_t token) : executor_(executor), token_(token) {}
    ~SimTimer() override { invalidate(); }
    void invalidate() override { executor_.cancel(token_); }

  private:
    SimExecutor& executor_;
    std::uint64_t token_;
};

const std::string mainLabel = "com.apple.main-thread";

}  // namespace

SimQueue::SimQueue(SimExecutor& executor, std::string label, QualityOfService quality)
    : executor_(executor), label_(std::move(label)), quality_(quality) {}

void SimQueue::async(Task task) {
    std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
}

void SimQueue::after(double seconds, Task task) {
    executor_.schedule(executor_.clock().now() + seconds, weak_from_this(), std::move(task));
}

void SimQueue::sync(Task task) {
    drain();
    task();
}

bool SimQueue::runOne() {
    Task task;
    {
        std::lock_guard lock(mutex_);
        if (next_ == tasks_.size()) return false;
        task = std::move(tasks_[next_++]);
        // Emptied, the list keeps its room: handing work over allocates nothing once warm.
        if (next_ == tasks_.size()) {
            tasks_.clear();
            next_ = 0;
        }
    }
    task();
    return true;
}

std::size_t SimQueue::drain() {
    std::size_t count = 0;
    while (runOne())
        ++count;
    return count;
}

std::size_t SimQueue::pending() const {
    std::lock_guard lock(mutex_);
    return tasks_.size() - next_;
}

SimExecutor::SimExecutor(SimClock& clock)
    : clock_(clock),
      main_(std::make_shared<SimQueue>(*this, mainLabel, QualityOfService::userInteractive)) {}

SimExecutor::~SimExecutor() = default;

std::shared_ptr<SerialQueue> SimExecutor::makeQueue(const std::string& label,
                                                    QualityOfService quality) {
    auto queue = std::make_shared<SimQueue>(*this, label, quality);
    std::lock_guard lock(mutex_);
    queues_.push_back(queue);
    return queue;
}

std::shared_ptr<SimQueue> SimExecutor::queue(const std::string& label) const {
    std::lock_guard lock(mutex_);
    for (auto it = queues_.rbegin(); it != queues_.rend(); ++it) {
        if ((*it)->label() == label) return *it;
    }
    return nullptr;
}

std::unique_ptr<Timer> SimExecutor::oneShot(double interval, double tolerance, Task fire) {
    {
        std::lock_guard lock(mutex_);
        timerRecords_.push_back({clock_.now(), interval, tolerance});
    }
    const std::uint64_t token = schedule(clock_.now() + interval, main_, std::move(fire));
    return std::make_unique<SimTimer>(*this, token);
}

std::uint64_t SimExecutor::schedule(double due, std::weak_ptr<SimQueue> queue, Task task) {
    std::lock_guard lock(mutex_);
    const std::uint64_t token = nextToken_++;
    timeline_.emplace(std::make_pair(due, token), Scheduled{std::move(queue), std::move(task)});
    return token;
}

void SimExecutor::cancel(std::uint64_t token) {
    std::lock_guard lock(mutex_);
    for (auto it = timeline_.begin(); it != timeline_.end(); ++it) {
        if (it->first.second == token) {
            timeline_.erase(it);
            return;
        }
    }
}

std::vector<std::shared_ptr<SimQueue>> SimExecutor::liveQueues() const {
    std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<SimQueue>> live{main_};
    live.insert(live.end(), queues_.begin(), queues_.end());
    return live;
}

std::size_t SimExecutor::runUntilIdle() {
    std::size_t total = 0;
    for (;;) {
        std::size_t ran = 0;
        for (const auto& queue : liveQueues())
            ran += queue->drain();
        if (ran == 0) return total;
        total += ran;
    }
}

bool SimExecutor::fireNext(double limit, bool mainOnly) {
    Scheduled next;
    {
        std::lock_guard lock(mutex_);
        if (timeline_.empty() || timeline_.begin()->first.first > limit) return false;
        auto first = timeline_.begin();
        clock_.advanceTo(first->first.first);
        next = std::move(first->second);
        timeline_.erase(first);
    }
    if (auto queue = next.queue.lock()) queue->async(std::move(next.task));
    if (mainOnly) {
        main_->drain();
    } else {
        runUntilIdle();
    }
    return true;
}

void SimExecutor::advance(double seconds) {
    const double target = clock_.now() + seconds;
    runUntilIdle();
    while (fireNext(target)) {
    }
    clock_.advanceTo(target);
}

void SimExecutor::advanceMain(double seconds) {
    const double target = clock_.now() + seconds;
    main_->drain();
    while (fireNext(target, true)) {
    }
    clock_.advanceTo(target);
}

bool SimExecutor::advanceToNextEvent() {
    runUntilIdle();
    const auto due = nextEventTime();
    return due && fireNext(*due);
}

std::optional<double> SimExecutor::nextEventTime() const {
    std::lock_guard lock(mutex_);
    if (timeline_.empty()) return std::nullopt;
    return timeline_.begin()->first.first;
}

std::vector<SimTimerRecord> SimExecutor::timers() const {
    std::lock_guard lock(mutex_);
    return timerRecords_;
}

}  // namespace vistrel
