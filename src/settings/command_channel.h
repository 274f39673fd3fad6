#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/notification_center.h"

namespace vistrel {

// The agent's end of the command channel: the Settings app posts the distributed
// notification "com.quillmarsh.vistrel.command" with the command's name under "command"
// (and a Boolean under "value" for "setLaunchAtLogin"); the agent only listens.
class CommandChannel {
  public:
    enum class Command { applySettings, requestAccessibility, setLaunchAtLogin, checkForUpdates };

    struct Request {
        Command command = Command::applySettings;
        // The argument of setLaunchAtLogin; false when missing or not a Boolean.
        bool value = false;

        friend bool operator==(const Request&, const Request&) = default;
    };

    static constexpr std::string_view commandKey = "command";
    static constexpr std::string_view valueKey = "value";

    // The command's name on the wire, exact and case-sensitive.
    static std::string_view name(Command command);
    // The request a notification carries; nothing for no user info, no "command", a
    // "command" that is not text, or an unknown name (all dropped without a log line).
    static std::optional<Request> parse(const NotificationCenter::UserInfo& userInfo);

    // "applySettings" acts on the status item, which the channel does not own: the owner
    // passes what to do (nothing while there is no status menu).
    explicit CommandChannel(std::function<void()> applySettings)
        : applySettings_(std::move(applySettings)) {}

    // Observes the command notification for the life of the process.
    void listen();
    // Dispatches one notification's user info.
    void handle(const NotificationCenter::UserInfo& userInfo);
    // Carries out a well-formed request.
    void perform(const Request& request);

  private:
    std::function<void()> applySettings_;
    // The observer holds this token weakly instead of the channel, so a notification that
    // arrives after the channel is gone finds nothing.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace vistrel
