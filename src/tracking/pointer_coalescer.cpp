#include "tracking/pointer_coalescer.h"

#include <optional>
#include <utility>

#include "platform/platform.h"

namespace vistrel {

struct PointerCoalescer::State {
    Deliver deliver;
    std::optional<Point> point;
    bool dragged = false;
    bool turnAsked = false;
};

PointerCoalescer::PointerCoalescer(Deliver deliver) : state_(std::make_shared<State>()) {
    state_->deliver = std::move(deliver);
}

PointerCoalescer::~PointerCoalescer() {
    if (!state_->turnAsked) return;
    // The turn already queued refers to the state: it finds nothing to deliver, and the
    // state goes with the task queued after it.
    state_->deliver = nullptr;
    platform().executor.main().async([state = std::move(state_)] {});
}

void PointerCoalescer::post(Point point, bool dragged) {
    State& state = *state_;
    state.point = point;
    state.dragged = dragged;
    if (state.turnAsked) return;
    state.turnAsked = true;
    platform().executor.main().async([state = &state] { turn(*state); });
}

void PointerCoalescer::turn(State& state) {
    state.turnAsked = false;
    const auto point = std::exchange(state.point, std::nullopt);
    if (point && state.deliver) state.deliver(*point, state.dragged);
}

void PointerCoalescer::flush() {
    State& state = *state_;
    const auto point = std::exchange(state.point, std::nullopt);
    if (point && state.deliver) state.deliver(*point, state.dragged);
}

bool PointerCoalescer::pending() const {
    return state_->point.has_value();
}

}  // namespace vistrel
