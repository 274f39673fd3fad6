#include "views/turn_deferred_window.h"

#include <optional>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "tracking/tap_callback.h"

namespace vistrel {

struct TurnDeferredWindow::State {
    std::unique_ptr<AgentWindow> window;
    std::vector<std::function<void(AgentWindow&)>> waiting;
    // What the waiting changes will make of the window.
    std::optional<Rect> frame;
    std::optional<double> alpha;
    std::optional<bool> visible;
    bool turnAsked = false;
};

TurnDeferredWindow::TurnDeferredWindow(std::unique_ptr<AgentWindow> window)
    : state_(std::make_shared<State>()) {
    state_->window = std::move(window);
}

TurnDeferredWindow::~TurnDeferredWindow() {
    applyWaiting(*state_);
}

template <class Change>
void TurnDeferredWindow::change(Change&& change) {
    State& state = *state_;
    if (!TapCallback::running()) {
        applyWaiting(state);
        change(*state.window);
        return;
    }
    state.waiting.emplace_back(std::forward<Change>(change));
    if (state.turnAsked) return;
    state.turnAsked = true;
    platform().executor.main().async([weak = std::weak_ptr<State>(state_)] {
        if (const auto state = weak.lock()) {
            state->turnAsked = false;
            applyWaiting(*state);
        }
    });
}

void TurnDeferredWindow::applyWaiting(State& state) {
    // A change may set off another (a fade's end); take the list first.
    auto waiting = std::exchange(state.waiting, {});
    for (auto& apply : waiting)
        apply(*state.window);
    state.frame.reset();
    state.alpha.reset();
    state.visible.reset();
}

void TurnDeferredWindow::setFrame(Rect frame, bool display) {
    if (TapCallback::running()) state_->frame = frame;
    change([frame, display](AgentWindow& window) { window.setFrame(frame, display); });
}

Rect TurnDeferredWindow::frame() const {
    return state_->frame.value_or(state_->window->frame());
}

void TurnDeferredWindow::setLevel(int level) {
    change([level](AgentWindow& window) { window.setLevel(level); });
}

void TurnDeferredWindow::setCollectionBehavior(std::uint64_t behavior) {
    change([behavior](AgentWindow& window) { window.setCollectionBehavior(behavior); });
}

void TurnDeferredWindow::setIgnoresMouseEvents(bool ignores) {
    change([ignores](AgentWindow& window) { window.setIgnoresMouseEvents(ignores); });
}

void TurnDeferredWindow::setAlpha(double alpha) {
    if (TapCallback::running()) state_->alpha = alpha;
    change([alpha](AgentWindow& window) { window.setAlpha(alpha); });
}

double TurnDeferredWindow::alpha() const {
    return state_->alpha.value_or(state_->window->alpha());
}

void TurnDeferredWindow::fade(double alpha, double seconds, std::function<void()> done) {
    if (TapCallback::running()) state_->alpha = alpha;
    change([alpha, seconds, done = std::move(done)](AgentWindow& window) mutable {
        window.fade(alpha, seconds, std::move(done));
    });
}

void TurnDeferredWindow::setContent(std::shared_ptr<const DisplayList> content) {
    change([content = std::move(content)](AgentWindow& window) mutable {
        window.setContent(std::move(content));
    });
}

void TurnDeferredWindow::orderFrontRegardless() {
    if (TapCallback::running()) state_->visible = true;
    change([](AgentWindow& window) { window.orderFrontRegardless(); });
}

void TurnDeferredWindow::orderOut() {
    if (TapCallback::running()) state_->visible = false;
    change([](AgentWindow& window) { window.orderOut(); });
}

bool TurnDeferredWindow::isVisible() const {
    return state_->visible.value_or(state_->window->isVisible());
}

bool TurnDeferredWindow::isOnActiveSpace() const {
    if (state_->visible.value_or(false)) return true;
    return state_->window->isOnActiveSpace();
}

void TurnDeferredWindow::setGlass(double cornerRadius) {
    change([cornerRadius](AgentWindow& window) { window.setGlass(cornerRadius); });
}

std::size_t TurnDeferredWindow::waiting() const {
    return state_->waiting.size();
}

}  // namespace vistrel
