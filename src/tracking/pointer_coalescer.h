#pragma once

#include <functional>
#include <memory>

#include "platform/geometry.h"

namespace vistrel {

// Takes pointer moves out of the event tap's callback. The system holds its input while the
// callback runs, so the callback only records the newest position and returns; the move is
// handled on the next turn of the main queue, where drawing and resizing windows cost the
// user nothing. Moves that arrive before that turn replace each other: only the newest is
// handled. A click or a key handles the pending move first (`flush`), so events keep their
// order. Main thread only; posting a move allocates nothing.
class PointerCoalescer {
  public:
    // Handles one move: where the pointer is, and whether a button is held (a drag).
    using Deliver = std::function<void(Point point, bool dragged)>;

    explicit PointerCoalescer(Deliver deliver);
    ~PointerCoalescer();
    PointerCoalescer(const PointerCoalescer&) = delete;
    PointerCoalescer& operator=(const PointerCoalescer&) = delete;

    // Records the move and asks for a turn of the main queue unless one is already asked for.
    void post(Point point, bool dragged);
    // Handles the pending move now, if there is one.
    void flush();
    bool pending() const;

  private:
    struct State;
    static void turn(State& state);

    // Shared with the queued turn, which refers to it unowned so that the hand-over needs no
    // allocation; the destructor keeps it alive until that turn has run.
    std::shared_ptr<State> state_;
};

}  // namespace vistrel
