#include "platform/mac/mac_executor.h"

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include <chrono>
#include <thread>

namespace vistrel {

namespace {

constexpr double nanosecondsPerSecond = 1e9;

dispatch_qos_class_t qosClass(QualityOfService quality) {
    switch (quality) {
        case QualityOfService::userInteractive:
            return QOS_CLASS_USER_INTERACTIVE;
        case QualityOfService::userInitiated:
            return QOS_CLASS_USER_INITIATED;
        case QualityOfService::utility:
            return QOS_CLASS_UTILITY;
        case QualityOfService::background:
            return QOS_CLASS_BACKGROUND;
    }
    return QOS_CLASS_DEFAULT;
}

class DispatchQueue : public SerialQueue {
  public:
    DispatchQueue(dispatch_queue_t queue, std::string label)
        : queue_(queue), label_(std::move(label)) {}

    void async(Task task) override {
        dispatch_async(queue_, ^{
          task();
        });
    }
    void after(double seconds, Task task) override {
        const auto delay = static_cast<int64_t>(seconds * nanosecondsPerSecond);
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, delay), queue_, ^{
          task();
        });
    }
    void sync(Task task) override {
        dispatch_sync(queue_, ^{
          task();
        });
    }
    const std::string& label() const override { return label_; }

  private:
    dispatch_queue_t queue_;
    std::string label_;
};

class RunLoopTimer : public Timer {
  public:
    explicit RunLoopTimer(NSTimer* timer) : timer_(timer) {}
    ~RunLoopTimer() override { invalidate(); }
    void invalidate() override { [timer_ invalidate]; }

  private:
    NSTimer* timer_;
};

}  // namespace

MacExecutor::MacExecutor()
    : main_(std::make_shared<DispatchQueue>(dispatch_get_main_queue(), "com.apple.main-thread")) {}

std::shared_ptr<SerialQueue> MacExecutor::makeQueue(const std::string& label,
                                                    QualityOfService quality) {
    dispatch_queue_attr_t attributes =
        dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, qosClass(quality), 0);
    return std::make_shared<DispatchQueue>(dispatch_queue_create(label.c_str(), attributes), label);
}

std::unique_ptr<Timer> MacExecutor::oneShot(double interval, double tolerance, Task fire) {
    NSTimer* timer = [NSTimer timerWithTimeInterval:interval
                                            repeats:NO
                                              block:^(NSTimer*) {
                                                fire();
                                              }];
    timer.tolerance = tolerance;
    [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
    return std::make_unique<RunLoopTimer>(timer);
}

double MacClock::now() {
    return [[NSDate date] timeIntervalSince1970];
}

void MacClock::sleep(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

}  // namespace vistrel
