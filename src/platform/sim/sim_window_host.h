#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/window_host.h"

namespace vistrel {

class SimExecutor;

// One window of the agent on the simulated screen: it keeps every property the agent
// sets so that tests can read them and the renderer can draw the window.
class SimAgentWindow : public AgentWindow {
  public:
    void setFrame(Rect frame, bool display) override;
    Rect frame() const override { return frame_; }
    void setLevel(int level) override { level_ = level; }
    void setCollectionBehavior(std::uint64_t behavior) override { collectionBehavior_ = behavior; }
    void setIgnoresMouseEvents(bool ignores) override { ignoresMouseEvents_ = ignores; }
    // Stops a running fade where it is, as AppKit's zero-length animation does.
    void setAlpha(double alpha) override;
    // While a fade runs: the value it has reached, in a straight line over virtual time.
    double alpha() const override;
    // Runs in virtual time: `done` comes on the main queue after `seconds`, also when the
    // fade was stopped before (AppKit calls a group's completion handler in any case). A
    // window outside a desktop has no clock: its fade ends at once.
    void fade(double alpha, double seconds, std::function<void()> done) override;
    void setContent(std::shared_ptr<const DisplayList> content) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    bool isVisible() const override { return visible_; }
    bool isOnActiveSpace() const override { return onActiveSpace_ && visible_; }
    void setGlass(double cornerRadius) override { glassRadius_ = cornerRadius; }

    int level() const { return level_; }
    std::uint64_t collectionBehavior() const { return collectionBehavior_; }
    bool ignoresMouseEvents() const { return ignoresMouseEvents_; }
    const std::shared_ptr<const DisplayList>& content() const { return content_; }
    // How often the window was ordered front, and how often its content was replaced.
    int orderFrontCount() const { return orderFrontCount_; }
    // How often the window was ordered out, visible or not.
    int orderOutCount() const { return orderOutCount_; }
    bool isFading() const { return fade_.has_value(); }
    int contentUpdates() const { return contentUpdates_; }
    WindowDeferral deferral() const { return deferral_; }
    void setDeferral(WindowDeferral deferral) { deferral_ = deferral; }
    // The corner radius of the glass behind the content; none without glass.
    std::optional<double> glassRadius() const { return glassRadius_; }
    // Simulates a Space change that leaves the window behind.
    void leaveActiveSpace() { onActiveSpace_ = false; }
    // The executor whose main queue and clock run the window's fades.
    void setExecutor(SimExecutor* executor) { executor_ = executor; }

  private:
    struct Fade {
        double from;
        double to;
        double startedAt;
        double seconds;
    };

    Rect frame_;
    int level_ = 0;
    std::uint64_t collectionBehavior_ = 0;
    bool ignoresMouseEvents_ = false;
    double alpha_ = 1;
    std::shared_ptr<const DisplayList> content_;
    bool visible_ = false;
    bool onActiveSpace_ = true;
    int orderFrontCount_ = 0;
    int orderOutCount_ = 0;
    int contentUpdates_ = 0;
    SimExecutor* executor_ = nullptr;
    std::optional<Fade> fade_;
    // Bumped by every fade, so the end of an earlier one leaves a later one alone.
    std::uint64_t fadeNumber_ = 0;
    // Delayed fade ends hold this weakly: a window freed before its fade ends is left alone.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
    WindowDeferral deferral_ = WindowDeferral::deferred;
    std::optional<double> glassRadius_;
};

// Makes agent windows and remembers them, so the screen renderer can draw each visible one.
class SimWindowHost : public WindowHost {
  public:
    // A host of a desktop fades its windows in the desktop's virtual time.
    explicit SimWindowHost(SimExecutor* executor = nullptr) : executor_(executor) {}

    std::unique_ptr<AgentWindow> makeWindow(WindowDeferral deferral) override;
    // The agent's windows that still exist, in the order they were made.
    std::vector<const SimAgentWindow*> windows() const;
    std::vector<SimAgentWindow*> windows();
    int windowsMade() const { return windowsMade_; }

  private:
    struct Tracked;
    SimExecutor* executor_;
    std::vector<std::weak_ptr<Tracked>> tracked_;
    int windowsMade_ = 0;
};

}  // namespace vistrel
