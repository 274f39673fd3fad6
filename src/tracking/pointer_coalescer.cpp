#include "tracking/pointer_coalescer.h"

#include <optional>
#include <utility>

#include "platform/platform.h"

namespace vistrel {

namespace {

struct Move {
    Point point;
    bool dragged = false;
};

}  // namespace

struct PointerCoalescer::State {
    Handlers handlers;
    // The newest move before a pending release, the release, and the newest move after it. A
    // press flushes, so no second release can come before the turn.
    std::optional<Move> before;
    std::optional<Point> release;
    std::optional<Move> after;
    std::optional<std::uint64_t> flags;
    bool turnAsked = false;
    bool alive = true;
};

PointerCoalescer::PointerCoalescer(Handlers handlers) : state_(std::make_shared<State>()) {
    state_->handlers = std::move(handlers);
}

PointerCoalescer::~PointerCoalescer() {
    if (!state_->turnAsked) return;
    // The turn already queued refers to the state: it finds nothing to deliver, and the
    // state goes with the task queued after it.
    state_->alive = false;
    platform().executor.main().async([state = std::move(state_)] {});
}

void PointerCoalescer::post(Point point, bool dragged) {
    State& state = *state_;
    (state.release ? state.after : state.before) = Move{point, dragged};
    askForTurn();
}

void PointerCoalescer::postRelease(Point point) {
    state_->release = point;
    askForTurn();
}

void PointerCoalescer::postFlags(std::uint64_t flags) {
    state_->flags = flags;
    askForTurn();
}

void PointerCoalescer::askForTurn() {
    State& state = *state_;
    if (state.turnAsked) return;
    state.turnAsked = true;
    platform().executor.main().async([state = &state] { turn(*state); });
}

void PointerCoalescer::turn(State& state) {
    state.turnAsked = false;
    deliverPending(state);
}

// Leaves the turn asked for as it is: a turn already queued still refers to the state.
void PointerCoalescer::flush() {
    deliverPending(*state_);
}

void PointerCoalescer::deliverPending(State& state) {
    if (!state.alive) return;
    const Handlers& handlers = state.handlers;
    if (const auto move = std::exchange(state.before, std::nullopt))
        handlers.moved(move->point, move->dragged);
    if (const auto point = std::exchange(state.release, std::nullopt)) handlers.released(*point);
    if (const auto move = std::exchange(state.after, std::nullopt))
        handlers.moved(move->point, move->dragged);
    if (const auto flags = std::exchange(state.flags, std::nullopt)) handlers.flagsChanged(*flags);
}

bool PointerCoalescer::pending() const {
    const State& state = *state_;
    return state.before || state.release || state.after || state.flags;
}

}  // namespace vistrel
