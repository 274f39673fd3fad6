#include "settings_app/settings_content.h"

#include "settings/preference_key.h"

namespace vistrel {

namespace {

// A status key reads false when missing or not a Boolean: the agent has not said yet.
bool statusFlag(DefaultsStore& store, std::string_view key) {
    return store.object(std::string(key)).boolean().value_or(false);
}

ControlBinding launchAtLogin() {
    // The agent owns the login item: the switch shows what the agent published and asks the
    // agent to change it.
    ControlBinding binding = Bind::flag(PreferenceKey::agentLaunchAtLogin, false);
    binding.writes = false;
    binding.command = CommandChannel::Command::setLaunchAtLogin;
    binding.sendsValue = true;
    return binding;
}

ControlBinding accessibilityStatus() {
    ControlBinding binding;
    binding.status = [](DefaultsStore& store) {
        if (statusFlag(store, PreferenceKey::agentAccessibilityTrusted)) {
            // The grant is on in System Settings, but macOS refuses every call with it.
            if (statusFlag(store, PreferenceKey::agentAccessibilityStale)) {
                return StatusState{
                    "Needs to be granted again: remove Vistrel from the list with "
                    "−, then add it again.",
                    false};
            }
            return StatusState{"Allowed", true};
        }
        return StatusState{"Not allowed yet", false};
    };
    return binding;
}

ControlBinding loginStatus() {
    ControlBinding binding;
    binding.status = [](DefaultsStore& store) {
        if (statusFlag(store, PreferenceKey::agentLaunchAtLoginNeedsApproval)) {
            return StatusState{"Needs your approval in System Settings › General › Login Items.",
                               false};
        }
        if (statusFlag(store, PreferenceKey::agentLaunchAtLogin)) {
            return StatusState{"Vistrel opens when you log in.", true};
        }
        return StatusState{"Vistrel opens only when you start it.", true};
    };
    return binding;
}

}  // namespace

ControlSpec::ControlSpec(ControlKind kind, std::string id, std::string label) {
    control_.kind = kind;
    control_.id = std::move(id);
    control_.label = std::move(label);
}

ControlSpec& ControlSpec::help(std::string text) {
    control_.help = std::move(text);
    return *this;
}

ControlSpec& ControlSpec::options(std::vector<ChoiceOption> options, ChoiceStyle style) {
    control_.options = std::move(options);
    control_.choiceStyle = style;
    return *this;
}

ControlSpec& ControlSpec::range(SliderRange range) {
    control_.range = std::move(range);
    return *this;
}

ControlSpec& ControlSpec::buttonTitle(std::string title) {
    control_.buttonTitle = std::move(title);
    return *this;
}

ControlSpec& ControlSpec::value(std::string text) {
    control_.value = std::move(text);
    return *this;
}

ControlSpec& ControlSpec::url(std::string address) {
    control_.url = std::move(address);
    return *this;
}

ControlSpec& ControlSpec::picture(PictureKind kind, Size size) {
    control_.picture = kind;
    control_.pictureSize = size;
    return *this;
}

ControlSpec& ControlSpec::keys(std::string keys) {
    control_.keys = std::move(keys);
    return *this;
}

PageBuilder& PageBuilder::section(std::string title, std::string footnote) {
    page_.sections.push_back({std::move(title), std::move(footnote), {}});
    return *this;
}

PageBuilder& PageBuilder::add(Control control, ControlBinding binding) {
    if (page_.sections.empty()) section();
    bindings_.insert_or_assign(control.id, std::move(binding));
    page_.sections.back().controls.push_back(std::move(control));
    return *this;
}

PageBuilder& PageBuilder::accessibilityRows(const std::string& prefix) {
    return add(ControlSpec(ControlKind::status, prefix + ".accessibility", "Access"),
               accessibilityStatus())
        .add(ControlSpec(ControlKind::button, prefix + ".requestAccessibility", "Permission")
                 .buttonTitle("Open System Settings…"),
             Bind::command(CommandChannel::Command::requestAccessibility));
}

PageBuilder& PageBuilder::loginRows(const std::string& prefix) {
    return add(ControlSpec(ControlKind::toggle, prefix + ".launchAtLogin", "Open Vistrel at login"),
               launchAtLogin())
        .add(ControlSpec(ControlKind::status, prefix + ".loginStatus", "Login item"),
             loginStatus());
}

SettingsContent SettingsContent::make(const std::string& version) {
    SettingsContent content;
    addGeneralPage(content);
    addButtonsPage(content);
    addShortcutsPage(content);
    addLayoutsPage(content);
    addAboutPage(content, version);
    addWelcomeSteps(content);
    return content;
}

namespace Bind {

ControlBinding flag(std::string_view key, bool fallback) {
    ControlBinding binding;
    binding.key = key;
    binding.read = ControlBinding::Read::flag;
    binding.defaultFlag = fallback;
    return binding;
}

ControlBinding invertedPlainFlag(std::string_view key) {
    ControlBinding binding;
    binding.key = key;
    binding.read = ControlBinding::Read::plainFlag;
    binding.inverted = true;
    return binding;
}

ControlBinding command(CommandChannel::Command command) {
    ControlBinding binding;
    binding.command = command;
    return binding;
}

}  // namespace Bind

}  // namespace vistrel
