#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/defaults_value.h"
#include "platform/sim/sim_desktop.h"
#include "settings/command_channel.h"

namespace vistrel::fuzz {

// Reads arbitrary bytes as a user-info value, so that the fuzzer can reach every shape a
// notification may carry: one tag byte picks the kind, then its contents follow.
class UserInfoReader {
  public:
    explicit UserInfoReader(std::string_view bytes) : bytes_(bytes) {}

    NotificationCenter::UserInfo userInfo() {
        if (take() % 8 == 0) return std::nullopt;
        return dictionary(0);
    }

  private:
    static constexpr int deepest = 4;
    static constexpr std::size_t longest = 16;

    std::uint8_t take() { return at_ < bytes_.size() ? std::uint8_t(bytes_[at_++]) : 0; }
    std::string text() {
        const std::size_t length = std::min<std::size_t>(take(), bytes_.size() - at_);
        std::string read(bytes_.substr(at_, length));
        at_ += length;
        return read;
    }
    DefaultsValue::Dictionary dictionary(int depth) {
        DefaultsValue::Dictionary entries;
        const std::size_t count = take() % longest;
        for (std::size_t i = 0; i < count && at_ < bytes_.size(); ++i) {
            // Most keys are the ones the channel reads, so values meet the dispatcher.
            std::string key = this->key(take());
            entries[std::move(key)] = value(depth + 1);
        }
        return entries;
    }
    DefaultsValue value(int depth) {
        switch (take() % 9) {
            case 0:
                return {};
            case 1:
                return take() % 2 == 1;
            case 2:
                return std::int64_t{static_cast<std::int8_t>(take())};
            case 3:
                return static_cast<double>(take()) / 3;
            case 4: {
                const auto name = CommandChannel::Command(take() % CommandChannel::commandCount);
                return std::string(CommandChannel::name(name));
            }
            case 5:
                return DefaultsValue::Data(take(), take());
            case 6:
                if (depth < deepest)
                    return DefaultsValue::Array{value(depth + 1), value(depth + 1)};
                return {};
            case 7:
                if (depth < deepest) return dictionary(depth);
                return {};
            default:
                return text();
        }
    }

    std::string key(std::uint8_t pick) {
        switch (pick % 6) {
            case 0:
                return "command";
            case 1:
                return "value";
            case 2:
                return "name";
            case 3:
                return "reply";
            default:
                return text();
        }
    }

    std::string_view bytes_;
    std::size_t at_ = 0;
};

// What the command channel promises for any notification: it acts only on a "command" that
// is exactly one of its names, and on a layout command only with a reply identifier, which
// its answers carry; anything else does nothing at all, not even log.
inline bool dispatchKeepsItsPromise(const NotificationCenter::UserInfo& userInfo) {
    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    desktop.trusted = false;
    int applied = 0;
    std::vector<CommandChannel::Request> layouts;
    CommandChannel channel{[&applied] { ++applied; },
                           [&layouts](const CommandChannel::Request& r) { layouts.push_back(r); }};
    channel.listen();
    desktop.notifications().post("com.quillmarsh.vistrel.command", userInfo);
    desktop.executor().runUntilIdle();

    const auto& posted = desktop.notifications().posted;
    const bool replied = posted.size() > 1;
    const bool acted = applied > 0 || !layouts.empty() || replied || desktop.trustPrompts > 0 ||
                       !desktop.workspace().openedURLs.empty() ||
                       desktop.application().activations() > 0 ||
                       !desktop.systemLog().lines().empty() ||
                       desktop.loginItem().status() != LoginItemStatus::notRegistered;
    const auto request = CommandChannel::parse(userInfo);
    if (!request) return !acted;
    if (userInfo->at("command").string() != CommandChannel::name(request->command)) return false;
    if (!CommandChannel::isLayoutCommand(request->command)) return layouts.empty() && !replied;
    // One acknowledgement carrying the request's reply identifier, and the request handed on.
    const auto reply = replied ? CommandChannel::parseReply(posted.back().second) : std::nullopt;
    return !request->reply.empty() && layouts.size() == 1 && layouts.front() == *request &&
           posted.size() == 2 && reply && reply->reply == request->reply && !reply->answer;
}

}  // namespace vistrel::fuzz
