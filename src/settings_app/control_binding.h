#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/defaults.h"
#include "settings/command_channel.h"
#include "settings_app/settings_control.h"

namespace vistrel {

class SettingsModel;

// What one control is bound to, kept by the model: the preference key it reads and writes
// (with the key's type and default), the command a change or a press posts, and what it
// depends on. Renderers never see it.
struct ControlBinding {
    // How the key's value is read; a value of another type reads as the default.
    enum class Read {
        none,       // not bound to a key
        flag,       // Boolean, `defaultFlag` when missing or not a Boolean
        plainFlag,  // Boolean, false when missing or not a Boolean
        text,       // text, `defaultText` when missing, not text or not one of the options
        number      // number, `defaultNumber` when missing or not a number, then clamped
    };

    std::string key;
    Read read = Read::none;
    bool defaultFlag = false;
    std::string defaultText;
    double defaultNumber = 0;
    // The switch shows the key's negation ("menuBarIconHidden", "hotkey.*.disabled").
    bool inverted = false;
    // Whether a change is written to the key (the agent's status keys are only read).
    bool writes = true;
    // Posted after a change (with the new Boolean as "value" when `sendsValue`), or when a
    // button is pressed.
    std::optional<CommandChannel::Command> command;
    bool sendsValue = false;
    // The toggle whose being off makes this control unusable; empty when always usable.
    std::string enabledBy;
    // Status controls: the state from the store.
    std::function<StatusState(DefaultsStore&)> status;
    // Buttons that act within the window.
    std::function<void(SettingsModel&)> action;
};

}  // namespace vistrel
