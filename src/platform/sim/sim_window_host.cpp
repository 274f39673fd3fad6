#include "platform/sim/sim_window_host.h"

#include <algorithm>

#include "platform/sim/sim_executor.h"

namespace vistrel {

void SimAgentWindow::setFrame(Rect frame, bool) {
    frame_ = frame;
}

void SimAgentWindow::setAlpha(double alpha) {
    fade_.reset();
    alpha_ = alpha;
}

double SimAgentWindow::alpha() const {
    if (!fade_ || fade_->seconds <= 0) return alpha_;
    const double elapsed = executor_->clock().now() - fade_->startedAt;
    const double progress = std::clamp(elapsed / fade_->seconds, 0.0, 1.0);
    return fade_->from + (fade_->to - fade_->from) * progress;
}

void SimAgentWindow::fade(double alpha, double seconds, std::function<void()> done) {
    if (executor_ == nullptr) {
        alpha_ = alpha;
        if (done) done();
        return;
    }
    fade_ = Fade{this->alpha(), alpha, executor_->clock().now(), seconds};
    const std::uint64_t number = ++fadeNumber_;
    std::weak_ptr<int> alive = alive_;
    executor_->main().after(seconds, [this, alive, number, done = std::move(done)] {
        if (alive.lock() && fade_ && fadeNumber_ == number) {
            alpha_ = fade_->to;
            fade_.reset();
        }
        if (done) done();
    });
}

void SimAgentWindow::orderOut() {
    visible_ = false;
    ++orderOutCount_;
}

void SimAgentWindow::setContent(std::shared_ptr<const DisplayList> content) {
    content_ = std::move(content);
    ++contentUpdates_;
}

void SimAgentWindow::orderFrontRegardless() {
    visible_ = true;
    ++orderFrontCount_;
}

// Ties a window's lifetime to the host's list: the window is freed by its owner, and the
// host's weak reference then finds nothing.
struct SimWindowHost::Tracked {
    SimAgentWindow window;
};

namespace {

// The AgentWindow handed out: forwards to the tracked window it keeps alive.
class OwnedWindow : public AgentWindow {
  public:
    explicit OwnedWindow(std::shared_ptr<SimAgentWindow> window) : window_(std::move(window)) {}
    void setFrame(Rect frame, bool display) override { window_->setFrame(frame, display); }
    Rect frame() const override { return window_->frame(); }
    void setLevel(int level) override { window_->setLevel(level); }
    void setCollectionBehavior(std::uint64_t b) override { window_->setCollectionBehavior(b); }
    void setIgnoresMouseEvents(bool ignores) override { window_->setIgnoresMouseEvents(ignores); }
    void setAlpha(double alpha) override { window_->setAlpha(alpha); }
    double alpha() const override { return window_->alpha(); }
    void fade(double alpha, double seconds, std::function<void()> done) override {
        window_->fade(alpha, seconds, std::move(done));
    }
    void setContent(std::shared_ptr<const DisplayList> content) override {
        window_->setContent(std::move(content));
    }
    void orderFrontRegardless() override { window_->orderFrontRegardless(); }
    void orderOut() override { window_->orderOut(); }
    bool isVisible() const override { return window_->isVisible(); }
    bool isOnActiveSpace() const override { return window_->isOnActiveSpace(); }
    void setGlass(double cornerRadius) override { window_->setGlass(cornerRadius); }

  private:
    std::shared_ptr<SimAgentWindow> window_;
};

}  // namespace

std::unique_ptr<AgentWindow> SimWindowHost::makeWindow(WindowDeferral deferral) {
    auto tracked = std::make_shared<Tracked>();
    tracked->window.setDeferral(deferral);
    tracked->window.setExecutor(executor_);
    tracked_.push_back(tracked);
    ++windowsMade_;
    return std::make_unique<OwnedWindow>(
        std::shared_ptr<SimAgentWindow>(tracked, &tracked->window));
}

std::vector<const SimAgentWindow*> SimWindowHost::windows() const {
    const auto live = const_cast<SimWindowHost*>(this)->windows();
    return {live.begin(), live.end()};
}

std::vector<SimAgentWindow*> SimWindowHost::windows() {
    std::vector<SimAgentWindow*> live;
    for (const auto& weak : tracked_) {
        if (auto tracked = weak.lock()) live.push_back(&tracked->window);
    }
    return live;
}

}  // namespace vistrel
