#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "settings_app/settings_content.h"
#include "settings_app/settings_model.h"
#include "settings_app/settings_pictures.h"
#include "ui/menu/shortcut_text.h"
#include "views/theme.h"

// The sidebar's pages: General, Buttons, Shortcuts, Layouts and About.

namespace vistrel {

namespace {

using Command = CommandChannel::Command;

constexpr std::string_view projectPage = "https://quillmarsh.com/vistrel";
constexpr std::string_view projectPageText = "quillmarsh.com/vistrel";
// Pictures fill the content column of the window.
constexpr Size previewSize{560, 120};
constexpr Size themesSize{560, 92};
constexpr Size aboutMarkSize{560, 132};

PageBuilder startPage(SettingsContent& content, PageId id, std::string title, std::string symbol) {
    content.pages.push_back({id, std::move(title), std::move(symbol), {}, {}});
    return PageBuilder(content.pages.back(), content.bindings);
}

ControlBinding text(std::string_view key, std::string_view fallback) {
    ControlBinding binding;
    binding.key = key;
    binding.read = ControlBinding::Read::text;
    binding.defaultText = fallback;
    return binding;
}

ControlBinding within(ControlBinding binding, std::string_view enabledBy) {
    binding.enabledBy = enabledBy;
    return binding;
}

}  // namespace

void addGeneralPage(SettingsContent& content) {
    ControlBinding menuBarIcon = Bind::invertedPlainFlag(PreferenceKey::menuBarIconHidden);
    menuBarIcon.command = Command::applySettings;
    ControlBinding showWelcome;
    showWelcome.action = [](SettingsModel& model) { model.showWelcome(); };

    startPage(content, PageId::general, "General", "gearshape")
        .section()
        .add(ControlSpec(ControlKind::toggle, "general.menuBarIcon", "Show Vistrel in the menu bar")
                 .help("While it is hidden, open Vistrel again from the Applications folder to "
                       "bring it back."),
             menuBarIcon)
        .loginRows("general")
        .section("Accessibility",
                 "Vistrel reads Mission Control and closes, minimizes and moves windows "
                 "through Accessibility.")
        .accessibilityRows("general")
        .section("Windows")
        .add(ControlSpec(ControlKind::choice, "general.maximizeMode", "Maximize a window by")
                 .help("What the maximize button and Command-F do in Mission Control.")
                 .options({{std::string(MaximizeMode::fullScreen), "Entering full screen"},
                           {std::string(MaximizeMode::fill), "Filling the screen"}}),
             text(PreferenceKey::maximizeMode, MaximizeMode::fullScreen))
        .section("More")
        .add(ControlSpec(ControlKind::button, "general.checkForUpdates", "Software update")
                 .buttonTitle("Check for Updates…"),
             Bind::command(Command::checkForUpdates))
        .add(ControlSpec(ControlKind::button, "general.welcome", "Welcome guide")
                 .buttonTitle("Show Welcome Guide…"),
             showWelcome);
}

void addButtonsPage(SettingsContent& content) {
    std::vector<ChoiceOption> themes;
    for (const Theme theme : allThemes) {
        themes.push_back({std::string(theme.rawValue()), themeTitle(theme)});
    }
    startPage(content, PageId::buttons, "Buttons", "circle.grid.3x3")
        .section({}, "The buttons appear over the window under the pointer in Mission Control.")
        .add(ControlSpec(ControlKind::picture, "buttons.preview", "Preview")
                 .picture(PictureKind::buttonsPreview, previewSize))
        .section("Buttons", "The close button is always shown.")
        .add(ControlSpec(ControlKind::toggle, "buttons.minimize", "Minimize button"),
             Bind::flag(PreferenceKey::showMinimizeButton, false))
        .add(ControlSpec(ControlKind::toggle, "buttons.maximize", "Maximize button"),
             Bind::flag(PreferenceKey::showMaximizeButton, false))
        .section("Look")
        .add(ControlSpec(ControlKind::choice, "buttons.size", "Size")
                 .options({{"small", "Small"}, {"medium", "Medium"}, {"large", "Large"}},
                          ChoiceStyle::segmented),
             text(PreferenceKey::buttonSizeOption, "medium"))
        .add(ControlSpec(ControlKind::choice, "buttons.theme", "Theme").options(themes),
             text(PreferenceKey::buttonTheme, Theme(Theme::classic).rawValue()))
        .add(ControlSpec(ControlKind::picture, "buttons.themes", "Themes")
                 .picture(PictureKind::themePreview, themesSize));
}

void addShortcutsPage(SettingsContent& content) {
    PageBuilder page = startPage(content, PageId::shortcuts, "Shortcuts", "command");
    page.section("In Mission Control",
                 "Each acts on the window under the pointer. A shortcut switched off reaches "
                 "the app in front as usual.");
    for (const Hotkey hotkey : allHotkeys) {
        const ShortcutText& shortcut = ShortcutText::of(hotkey);
        page.add(ControlSpec(ControlKind::shortcutKeys, "shortcuts." + std::string(name(hotkey)),
                             std::string(shortcut.title))
                     .keys(std::string(shortcut.keys)),
                 Bind::invertedPlainFlag(Shared::Key::hotkeyDisabled(hotkey)));
    }
}

void addLayoutsPage(SettingsContent& content) {
    constexpr std::string_view enabled = "layouts.enabled";
    ControlBinding gap;
    gap.key = PreferenceKey::layoutsGap;
    gap.read = ControlBinding::Read::number;
    gap.enabledBy = enabled;
    ControlBinding savedList;
    savedList.key = PreferenceKey::layoutsSaved;

    startPage(content, PageId::layouts, "Layouts", "rectangle.3.group")
        .section()
        .add(ControlSpec(ControlKind::toggle, std::string(enabled), "Layouts")
                 .help("Save window arrangements and restore them from the shelf, the menu or "
                       "Command-1 to Command-9."),
             Bind::flag(PreferenceKey::layoutsEnabled, true))
        .add(ControlSpec(ControlKind::toggle, "layouts.shelf", "Show the shelf in Mission Control"),
             within(Bind::flag(PreferenceKey::layoutsShelf, true), enabled))
        .add(ControlSpec(ControlKind::toggle, "layouts.launchApps",
                         "Open apps that are not running when restoring"),
             within(Bind::flag(PreferenceKey::layoutsLaunchApps, true), enabled))
        .add(ControlSpec(ControlKind::slider, "layouts.gap", "Gap between windows")
                 .range({0, Settings::maxLayoutsGap, 1, "pt"}),
             gap)
        .add(ControlSpec(ControlKind::choice, "layouts.followDisplays", "When your displays change")
                 .help("Plug a display in again or wake at your desk, and the latest layout "
                       "saved on those displays puts the windows back.")
                 .options({{std::string(FollowDisplays::ask), "Offer their layout in the menu"},
                           {std::string(FollowDisplays::automatic), "Restore their layout"},
                           {std::string(FollowDisplays::off), "Do nothing"}}),
             within(text(PreferenceKey::layoutsFollowDisplays, FollowDisplays::ask), enabled))
        .section("Saved Layouts",
                 "Command-1 to Command-9 restore the first nine while Mission Control is open.")
        .add(ControlSpec(ControlKind::layoutList, "layouts.saved", "Saved layouts"), savedList);
}

void addAboutPage(SettingsContent& content, const std::string& version) {
    startPage(content, PageId::about, "About", "info.circle")
        .section()
        .add(ControlSpec(ControlKind::picture, "about.mark", "Vistrel")
                 .picture(PictureKind::appIcon, aboutMarkSize))
        .add(ControlSpec(ControlKind::text, "about.version", "Version").value(version))
        .add(ControlSpec(ControlKind::link, "about.website", "Project page")
                 .value(std::string(projectPageText))
                 .url(std::string(projectPage)))
        .section("Fonts", "Both fonts are licensed under the SIL Open Font License, Version 1.1.")
        .add(ControlSpec(ControlKind::text, "about.font.geistMono", "Geist Mono")
                 .value("© 2023 Vercel, with basement.studio"))
        .add(ControlSpec(ControlKind::text, "about.font.instrumentSans", "Instrument Sans")
                 .value("© 2022 The Instrument Sans Project Authors"));
}

}  // namespace vistrel
