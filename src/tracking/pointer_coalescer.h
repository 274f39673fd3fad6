#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/geometry.h"

namespace vistrel {

// Takes the pointer's events out of the event tap's callback. The system holds its input
// while the callback runs, so the callback only records what happened and returns; the
// events are handled on the next turn of the main queue, where drawing and resizing windows
// cost the user nothing. Moves that arrive before that turn replace each other: only the
// newest is handled. A release and a change of the modifier keys are kept in their order
// among the moves. A click or a key, whose fate the tap must decide at once, handles what is
// pending first (`flush`). Main thread only; posting a move allocates nothing.
class PointerCoalescer {
  public:
    struct Handlers {
        // Where the pointer is, and whether a button is held (a drag).
        std::function<void(Point point, bool dragged)> moved;
        // A release that went on to the system.
        std::function<void(Point point)> released;
        // The modifier keys held now.
        std::function<void(std::uint64_t flags)> flagsChanged;
    };

    explicit PointerCoalescer(Handlers handlers);
    ~PointerCoalescer();
    PointerCoalescer(const PointerCoalescer&) = delete;
    PointerCoalescer& operator=(const PointerCoalescer&) = delete;

    // Records the move and asks for a turn of the main queue unless one is already asked for.
    void post(Point point, bool dragged);
    // Records the release after the moves before it; later moves are handled after it.
    void postRelease(Point point);
    // Records the modifier keys; only the newest state is handled, after the pointer's events.
    void postFlags(std::uint64_t flags);
    // Handles everything pending now, in order.
    void flush();
    bool pending() const;

  private:
    struct State;
    static void turn(State& state);
    static void deliverPending(State& state);
    void askForTurn();

    // Shared with the queued turn, which refers to it unowned so that the hand-over needs no
    // allocation; the destructor keeps it alive until that turn has run.
    std::shared_ptr<State> state_;
};

}  // namespace vistrel
