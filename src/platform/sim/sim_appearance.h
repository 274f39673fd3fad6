#pragma once

#include <cstdint>
#include <map>

#include "platform/appearance.h"

namespace vistrel {

// The simulated system appearance: light until a test switches it.
class SimAppearance : public SystemAppearance {
  public:
    Appearance current() override { return appearance_; }
    std::uint64_t observe(Observer observer) override;
    void stopObserving(std::uint64_t token) override { observers_.erase(token); }

    // Switches the system's appearance and tells every observer.
    void set(Appearance appearance);
    std::size_t observers() const { return observers_.size(); }
    // When set, observing fails.
    bool failObserving = false;

  private:
    Appearance appearance_ = Appearance::light;
    std::uint64_t next_ = 1;
    std::map<std::uint64_t, Observer> observers_;
};

}  // namespace vistrel
