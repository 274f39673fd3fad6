#pragma once

namespace vistrel {

// Whether the event tap's callback is running on this thread. The system holds its input
// until the callback returns, so what the callback sets off that only shows something (a
// window drawn, resized, ordered or faded) waits for the next turn of the main queue.
class TapCallback {
  public:
    static bool running();

    // Marks the callback as running for as long as it lives.
    class Scope {
      public:
        Scope();
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        bool outer_;
    };
};

}  // namespace vistrel
