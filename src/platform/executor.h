#pragma once

#include <functional>
#include <memory>
#include <string>

namespace vistrel {

using Task = std::function<void()>;

// Dispatch quality-of-service classes.
enum class QualityOfService { userInteractive, userInitiated, utility, background };

// A serial queue: tasks run one at a time, in the order they were handed over.
class SerialQueue {
  public:
    virtual ~SerialQueue() = default;
    // dispatch_async.
    virtual void async(Task task) = 0;
    // dispatch_after: the task is handed to the queue after `seconds`.
    virtual void after(double seconds, Task task) = 0;
    // dispatch_sync: runs the task on the queue and waits for it (and everything before it).
    virtual void sync(Task task) = 0;
    virtual const std::string& label() const = 0;
};

// A one-shot timer on the main run loop (NSTimer in the common modes). Freeing it, or
// calling invalidate(), cancels it if it has not fired yet.
class Timer {
  public:
    virtual ~Timer() = default;
    virtual void invalidate() = 0;
};

// Grand Central Dispatch and run-loop timers.
class Executor {
  public:
    virtual ~Executor() = default;
    // The main queue: every piece of user-interface and engine state lives on it.
    virtual SerialQueue& main() = 0;
    // dispatch_queue_create(label, serial) with the quality of service.
    virtual std::shared_ptr<SerialQueue> makeQueue(const std::string& label,
                                                   QualityOfService quality) = 0;
    // A one-shot timer firing on the main thread after `interval` seconds, allowed to be
    // late by up to `tolerance` seconds so the system can coalesce wake-ups.
    virtual std::unique_ptr<Timer> oneShot(double interval, double tolerance, Task fire) = 0;
};

// Wall-clock time in seconds since 1970-01-01 UTC.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual double now() = 0;
    // Blocks the calling (background) thread; never called on the main thread.
    virtual void sleep(double seconds) = 0;
};

}  // namespace vistrel
