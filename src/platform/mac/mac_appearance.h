#pragma once

#include "platform/appearance.h"

namespace vistrel {

// NSApp.effectiveAppearance and its changes, observed by key-value observation. Main
// thread only.
class MacAppearance : public SystemAppearance {
  public:
    MacAppearance();
    ~MacAppearance() override;
    MacAppearance(const MacAppearance&) = delete;
    MacAppearance& operator=(const MacAppearance&) = delete;

    Appearance current() override;
    std::uint64_t observe(Observer observer) override;
    void stopObserving(std::uint64_t token) override;

  private:
    // The VistrelAppearanceObserver, retained.
    void* observer_;
};

}  // namespace vistrel
