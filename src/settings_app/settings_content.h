#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "settings_app/control_binding.h"
#include "settings_app/settings_control.h"

namespace vistrel {

// The Settings app's pages and welcome steps with what each control is bound to.
struct SettingsContent {
    using Bindings = std::map<std::string, ControlBinding, std::less<>>;

    std::vector<Page> pages;
    std::vector<Page> welcomeSteps;
    Bindings bindings;

    // `version` is the text the About page shows ("1.2 (40)").
    static SettingsContent make(const std::string& version);
};

// A control as the pages spell it: kind, id and label, then what its kind needs.
class ControlSpec {
  public:
    ControlSpec(ControlKind kind, std::string id, std::string label);

    ControlSpec& help(std::string text);
    ControlSpec& options(std::vector<ChoiceOption> options, ChoiceStyle style = ChoiceStyle::popUp);
    ControlSpec& range(SliderRange range);
    ControlSpec& buttonTitle(std::string title);
    ControlSpec& value(std::string text);
    ControlSpec& url(std::string address);
    ControlSpec& picture(PictureKind kind, Size size);
    ControlSpec& keys(std::string keys);

    operator Control() const { return control_; }

  private:
    Control control_;
};

// Adds controls and their bindings to one page at a time.
class PageBuilder {
  public:
    PageBuilder(Page& page, SettingsContent::Bindings& bindings)
        : page_(page), bindings_(bindings) {}

    // Starts a new section; the controls added next go into it.
    PageBuilder& section(std::string title = {}, std::string footnote = {});
    PageBuilder& add(Control control, ControlBinding binding = {});
    // The Accessibility grant's live state and the button that asks the agent for the
    // system's prompt: "<prefix>.accessibility" and "<prefix>.requestAccessibility".
    PageBuilder& accessibilityRows(const std::string& prefix);
    // The switch for opening at login and the login item's live state:
    // "<prefix>.launchAtLogin" and "<prefix>.loginStatus".
    PageBuilder& loginRows(const std::string& prefix);

  private:
    Page& page_;
    SettingsContent::Bindings& bindings_;
};

// The sidebar's pages and the welcome guide's steps, each built by its own function.
void addGeneralPage(SettingsContent& content);
void addButtonsPage(SettingsContent& content);
void addShortcutsPage(SettingsContent& content);
void addLayoutsPage(SettingsContent& content);
void addAboutPage(SettingsContent& content, const std::string& version);
void addWelcomeSteps(SettingsContent& content);

// Bindings the pages share.
namespace Bind {
// A Boolean key with a default for missing or mistyped values.
ControlBinding flag(std::string_view key, bool fallback);
// A Boolean key read with the plain getter (false when missing), shown negated.
ControlBinding invertedPlainFlag(std::string_view key);
// A button posting a command.
ControlBinding command(CommandChannel::Command command);
}  // namespace Bind

}  // namespace vistrel
