#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/window_host.h"

namespace vistrel {

class SimClock;

// One window of the agent on the simulated screen: it keeps every property the agent
// sets so that tests can read them and the renderer can draw the window.
class SimAgentWindow : public AgentWindow {
  public:
    void setFrame(Rect frame, bool display) override;
    Rect frame() const override { return frame_; }
    void setLevel(int level) override { level_ = level; }
    void setCollectionBehavior(std::uint64_t behavior) override { collectionBehavior_ = behavior; }
    void setIgnoresMouseEvents(bool ignores) override { ignoresMouseEvents_ = ignores; }
    void setAlpha(double alpha) override { alpha_ = alpha; }
    double alpha() const override { return alpha_; }
    // The fade completes at once in the simulation.
    void fade(double alpha, double seconds, std::function<void()> done) override;
    void setContent(std::shared_ptr<const DisplayList> content) override;
    void orderFrontRegardless() override;
    void orderOut() override { visible_ = false; }
    bool isVisible() const override { return visible_; }
    bool isOnActiveSpace() const override { return onActiveSpace_ && visible_; }
    void setGlass(double cornerRadius) override { glassRadius_ = cornerRadius; }

    int level() const { return level_; }
    std::uint64_t collectionBehavior() const { return collectionBehavior_; }
    bool ignoresMouseEvents() const { return ignoresMouseEvents_; }
    const std::shared_ptr<const DisplayList>& content() const { return content_; }
    // How often the window was ordered front, and how often its content was replaced.
    int orderFrontCount() const { return orderFrontCount_; }
    int contentUpdates() const { return contentUpdates_; }
    WindowDeferral deferral() const { return deferral_; }
    void setDeferral(WindowDeferral deferral) { deferral_ = deferral; }
    // The corner radius of the glass behind the content; none without glass.
    std::optional<double> glassRadius() const { return glassRadius_; }
    // Simulates a Space change that leaves the window behind.
    void leaveActiveSpace() { onActiveSpace_ = false; }

  private:
    Rect frame_;
    int level_ = 0;
    std::uint64_t collectionBehavior_ = 0;
    bool ignoresMouseEvents_ = false;
    double alpha_ = 1;
    std::shared_ptr<const DisplayList> content_;
    bool visible_ = false;
    bool onActiveSpace_ = true;
    int orderFrontCount_ = 0;
    int contentUpdates_ = 0;
    WindowDeferral deferral_ = WindowDeferral::deferred;
    std::optional<double> glassRadius_;
};

// Makes agent windows and remembers them, so the screen renderer can draw each visible one.
class SimWindowHost : public WindowHost {
  public:
    std::unique_ptr<AgentWindow> makeWindow(WindowDeferral deferral) override;
    // The agent's windows that still exist, in the order they were made.
    std::vector<const SimAgentWindow*> windows() const;
    std::vector<SimAgentWindow*> windows();
    int windowsMade() const { return windowsMade_; }

  private:
    struct Tracked;
    std::vector<std::weak_ptr<Tracked>> tracked_;
    int windowsMade_ = 0;
};

}  // namespace vistrel
