#pragma once

#include <functional>
#include <memory>

#include "platform/window_host.h"

namespace vistrel {

// An agent window whose changes, when made inside the event tap's callback, wait for the
// next turn of the main queue: the system holds its input while the callback runs, and
// drawing, resizing, ordering or fading a window there would hold it longer. Changes keep
// their order; one made outside the callback first applies those still waiting. Until they
// are applied the window answers what it will be: its frame, alpha and visibility as last
// set. Main thread only; a change outside the callback allocates nothing.
class TurnDeferredWindow : public AgentWindow {
  public:
    explicit TurnDeferredWindow(std::unique_ptr<AgentWindow> window);
    // Applies what still waits: a window going away still goes out as it was told.
    ~TurnDeferredWindow() override;
    TurnDeferredWindow(const TurnDeferredWindow&) = delete;
    TurnDeferredWindow& operator=(const TurnDeferredWindow&) = delete;

    void setFrame(Rect frame, bool display) override;
    Rect frame() const override;
    void setLevel(int level) override;
    void setCollectionBehavior(std::uint64_t behavior) override;
    void setIgnoresMouseEvents(bool ignores) override;
    void setAlpha(double alpha) override;
    double alpha() const override;
    void fade(double alpha, double seconds, std::function<void()> done) override;
    void setContent(std::shared_ptr<const DisplayList> content) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    bool isVisible() const override;
    // A window waiting to be ordered front will come up on the active Space.
    bool isOnActiveSpace() const override;
    void setGlass(double cornerRadius) override;

    // How many changes wait for the next turn.
    std::size_t waiting() const;

  private:
    struct State;
    template <class Change>
    void change(Change&& change);
    static void applyWaiting(State& state);

    std::shared_ptr<State> state_;
};

}  // namespace vistrel
