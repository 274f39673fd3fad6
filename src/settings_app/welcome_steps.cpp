#include "settings_app/settings_content.h"

// The welcome guide: what Vistrel does, the Accessibility grant, opening at login, and a
// last word on where to go next.

namespace vistrel {

namespace {

constexpr Size welcomePictureSize{560, 200};

PageBuilder startStep(SettingsContent& content, PageId id, std::string title, std::string symbol,
                      std::string subtitle) {
    content.welcomeSteps.push_back(
        {id, std::move(title), std::move(symbol), std::move(subtitle), {}});
    return PageBuilder(content.welcomeSteps.back(), content.bindings);
}

}  // namespace

void addWelcomeSteps(SettingsContent& content) {
    startStep(content, PageId::welcome, "Welcome to Vistrel", "sparkles",
              "Buttons and shortcuts for the window under the pointer in Mission Control.")
        .section()
        .add(ControlSpec(ControlKind::picture, "welcome.picture",
                         "The buttons over a window in Mission Control")
                 .picture(PictureKind::welcome, welcomePictureSize))
        .section()
        .add(ControlSpec(ControlKind::text, "welcome.buttons", "Buttons")
                 .help("Close, minimize or maximize a window without leaving Mission Control."))
        .add(ControlSpec(ControlKind::text, "welcome.shortcuts", "Shortcuts")
                 .help("Command-W, Command-M, Command-F and more act on the window under the "
                       "pointer."))
        .add(ControlSpec(ControlKind::text, "welcome.layouts", "Layouts")
                 .help("Save an arrangement of windows and bring it back in one step."));

    startStep(content, PageId::accessibility, "Allow Accessibility", "hand.raised",
              "Vistrel reads Mission Control and acts on windows through Accessibility.")
        .section({},
                 "Turn Vistrel on in Privacy & Security › Accessibility. This guide moves on by "
                 "itself once access is allowed.")
        .accessibilityRows("welcome");

    startStep(content, PageId::login, "Open at Login", "power",
              "Vistrel waits in the menu bar and is ready whenever Mission Control opens.")
        .section()
        .loginRows("welcome");

    startStep(content, PageId::ready, "You Are All Set", "checkmark.circle",
              "Open Mission Control and point at a window.")
        .section()
        .add(ControlSpec(ControlKind::text, "welcome.settings", "Settings")
                 .help("Choose buttons, themes and shortcuts from the Vistrel menu at any time."));
}

}  // namespace vistrel
