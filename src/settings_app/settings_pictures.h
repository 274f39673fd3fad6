#pragma once

#include <memory>
#include <string>

#include "platform/appearance.h"
#include "platform/defaults.h"
#include "platform/display_list.h"
#include "settings_app/settings_control.h"
#include "views/theme.h"

namespace vistrel {

// The theme's name as the user reads it ("Graphite").
std::string themeTitle(Theme theme);

// The pictures of the Settings app, drawn with the overlay's own button drawing from the
// current preferences (which buttons, their size and theme), so they show what Mission
// Control will show. Each is a flipped display list of the asked size.
class SettingsPictures {
  public:
    explicit SettingsPictures(std::shared_ptr<DefaultsStore> store) : store_(std::move(store)) {}

    std::shared_ptr<const DisplayList> draw(PictureKind kind, Size size,
                                            Appearance appearance) const;

  private:
    void drawMissionControl(Canvas& canvas, Size size, Appearance appearance,
                            bool allButtons) const;
    void drawThemes(Canvas& canvas, Size size, Appearance appearance) const;
    void drawAppIcon(Canvas& canvas, Size size, Appearance appearance) const;

    std::shared_ptr<DefaultsStore> store_;
};

}  // namespace vistrel
