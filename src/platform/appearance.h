#pragma once

#include <cstdint>
#include <functional>

namespace vistrel {

// The two palettes the agent draws in. High-contrast variants count as their base.
enum class Appearance { light, dark };

// The system's appearance: NSApp.effectiveAppearance.bestMatch(from: aqua, darkAqua,
// accessibilityHighContrastAqua, accessibilityHighContrastDarkAqua), the dark ones giving
// `dark`, anything else (no match included) `light`. Main thread only.
class SystemAppearance {
  public:
    using Observer = std::function<void(Appearance)>;

    virtual ~SystemAppearance() = default;
    virtual Appearance current() = 0;
    // Key-value observation of NSApp.effectiveAppearance: the observer runs on the main
    // thread after each change. Answers a token for stopObserving; 0 when observing failed.
    virtual std::uint64_t observe(Observer observer) = 0;
    virtual void stopObserving(std::uint64_t token) = 0;
};

}  // namespace vistrel
