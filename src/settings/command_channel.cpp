#include "settings/command_channel.h"

#include <array>
#include <string>

#include "platform/platform.h"
#include "settings/accessibility_pane.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "settings/updates.h"

namespace vistrel {

namespace {

constexpr std::array commands{
    CommandChannel::Command::applySettings, CommandChannel::Command::requestAccessibility,
    CommandChannel::Command::setLaunchAtLogin, CommandChannel::Command::checkForUpdates};

}  // namespace

std::string_view CommandChannel::name(Command command) {
    switch (command) {
        case Command::applySettings:
            return "applySettings";
        case Command::requestAccessibility:
            return "requestAccessibility";
        case Command::setLaunchAtLogin:
            return "setLaunchAtLogin";
        case Command::checkForUpdates:
            return "checkForUpdates";
    }
    return {};
}

std::optional<CommandChannel::Request> CommandChannel::parse(
    const NotificationCenter::UserInfo& userInfo) {
    if (!userInfo) return std::nullopt;
    const auto entry = userInfo->find(std::string(commandKey));
    if (entry == userInfo->end()) return std::nullopt;
    const auto text = entry->second.string();
    if (!text) return std::nullopt;
    for (Command command : commands) {
        if (*text != name(command)) continue;
        const auto value = userInfo->find(std::string(valueKey));
        const bool on = value != userInfo->end() && value->second.boolean().value_or(false);
        return Request{command, command == Command::setLaunchAtLogin && on};
    }
    return std::nullopt;
}

void CommandChannel::listen() {
    std::weak_ptr<int> alive = alive_;
    platform().notifications.observe(std::string(Shared::Command::name),
                                     [this, alive](const NotificationCenter::UserInfo& userInfo) {
                                         if (alive.lock()) handle(userInfo);
                                     });
}

void CommandChannel::handle(const NotificationCenter::UserInfo& userInfo) {
    if (auto request = parse(userInfo)) perform(*request);
}

void CommandChannel::perform(const Request& request) {
    switch (request.command) {
        case Command::applySettings:
            if (applySettings_) applySettings_();
            return;
        case Command::requestAccessibility:
            platform().accessibility.promptForTrust();
            AccessibilityPane::open();
            return;
        case Command::setLaunchAtLogin:
            Settings::shared().setLaunchAtLogin(request.value);
            return;
        case Command::checkForUpdates:
            platform().application.activate();
            Updates::checkForUpdates();
            return;
    }
}

}  // namespace vistrel
