#include "settings/command_channel.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "settings/accessibility_pane.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "settings/updates.h"

namespace vistrel {

namespace {

using Command = CommandChannel::Command;
using Dictionary = DefaultsValue::Dictionary;

constexpr std::array<Command, CommandChannel::commandCount> commands{
    Command::applySettings,   Command::requestAccessibility, Command::setLaunchAtLogin,
    Command::checkForUpdates, Command::applyLayout,          Command::saveLayout,
    Command::listLayouts};

constexpr std::string_view unavailable = "Vistrel cannot do this now";

std::optional<std::string> text(const Dictionary& entries, std::string_view key) {
    const auto entry = entries.find(std::string(key));
    if (entry == entries.end()) return std::nullopt;
    return entry->second.string();
}

// The names of an answer: nothing when present and not an array of texts.
std::optional<std::vector<std::string>> names(const Dictionary& entries) {
    const auto entry = entries.find(std::string(CommandChannel::namesKey));
    if (entry == entries.end()) return std::vector<std::string>{};
    const auto array = entry->second.array();
    if (!array) return std::nullopt;
    std::vector<std::string> read;
    for (const DefaultsValue& value : *array) {
        auto name = value.string();
        if (!name) return std::nullopt;
        read.push_back(std::move(*name));
    }
    return read;
}

void postReply(Dictionary entries) {
    platform().notifications.post(std::string(CommandChannel::replyName), std::move(entries));
}

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
        case Command::applyLayout:
            return "applyLayout";
        case Command::saveLayout:
            return "saveLayout";
        case Command::listLayouts:
            return "listLayouts";
    }
    return {};
}

bool CommandChannel::isLayoutCommand(Command command) {
    return command == Command::applyLayout || command == Command::saveLayout ||
           command == Command::listLayouts;
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
        if (isLayoutCommand(command)) {
            auto reply = vistrel::text(*userInfo, replyKey);
            if (!reply || reply->empty()) return std::nullopt;
            return Request{command, false, vistrel::text(*userInfo, nameKey).value_or(""),
                           std::move(*reply)};
        }
        const auto value = userInfo->find(std::string(valueKey));
        const bool on = value != userInfo->end() && value->second.boolean().value_or(false);
        return Request{command, command == Command::setLaunchAtLogin && on};
    }
    return std::nullopt;
}

DefaultsValue::Dictionary CommandChannel::layoutCommand(Command command, const std::string& name,
                                                        const std::string& reply) {
    return {{std::string(commandKey), std::string(CommandChannel::name(command))},
            {std::string(nameKey), name},
            {std::string(replyKey), reply}};
}

void CommandChannel::answer(const std::string& reply, const Answer& answer) {
    DefaultsValue::Array names(answer.names.begin(), answer.names.end());
    postReply({{std::string(replyKey), reply},
               {std::string(stateKey), std::string(done)},
               {std::string(okKey), answer.ok},
               {std::string(messageKey), answer.message},
               {std::string(namesKey), std::move(names)}});
}

std::optional<CommandChannel::Reply> CommandChannel::parseReply(
    const NotificationCenter::UserInfo& userInfo) {
    if (!userInfo) return std::nullopt;
    auto reply = text(*userInfo, replyKey);
    const auto state = text(*userInfo, stateKey);
    if (!reply || !state) return std::nullopt;
    if (*state == accepted) return Reply{std::move(*reply), std::nullopt};
    const auto ok = userInfo->find(std::string(okKey));
    auto listed = names(*userInfo);
    if (*state != done || ok == userInfo->end() || !ok->second.boolean() || !listed)
        return std::nullopt;
    return Reply{std::move(*reply),
                 Answer{*ok->second.boolean(), text(*userInfo, messageKey).value_or(""),
                        std::move(*listed)}};
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
        case Command::applyLayout:
        case Command::saveLayout:
        case Command::listLayouts:
            performLayoutCommand(request);
            return;
    }
}

void CommandChannel::performLayoutCommand(const Request& request) {
    if (!layouts_) return answer(request.reply, {false, std::string(unavailable), {}});
    postReply(
        {{std::string(replyKey), request.reply}, {std::string(stateKey), std::string(accepted)}});
    layouts_(request);
}

}  // namespace vistrel
