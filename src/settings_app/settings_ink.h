#pragma once

#include "platform/appearance.h"
#include "platform/color.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel {

// The colours one part of the Settings window is painted in: the appearance's, faded as
// macOS fades a control that cannot be used.
struct SettingsInk {
    static constexpr double disabledOpacity = 0.4;

    Appearance appearance = Appearance::light;
    bool enabled = true;

    Color operator()(const DFKitColor& color) const { return (*this)(color.resolved(appearance)); }
    Color operator()(Color color) const {
        return enabled ? color : color.withAlpha(color.alpha * disabledOpacity);
    }
    SettingsInk disabledUnless(bool usable) const { return {appearance, enabled && usable}; }
};

}  // namespace vistrel
