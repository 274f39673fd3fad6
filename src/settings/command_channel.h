#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/notification_center.h"

namespace vistrel {

// The agent's end of the command channel: the Settings app posts the distributed
// notification "com.quillmarsh.vistrel.command" with the command's name under "command"
// (and a Boolean under "value" for "setLaunchAtLogin"); the agent listens. The layout
// commands come from the command line, which waits for an answer: each carries a reply
// identifier under "reply" (and a layout's name under "name"), and the agent answers on the
// reply notification, at once that it is at work ("accepted") and when it is done ("done").
class CommandChannel {
  public:
    enum class Command {
        applySettings,
        requestAccessibility,
        setLaunchAtLogin,
        checkForUpdates,
        applyLayout,
        saveLayout,
        listLayouts,
    };
    static constexpr int commandCount = 7;

    struct Request {
        Command command = Command::applySettings;
        // The argument of setLaunchAtLogin; false when missing or not a Boolean.
        bool value = false;
        // A layout command's name (empty when missing or not text) and reply identifier.
        std::string name = {};
        std::string reply = {};

        friend bool operator==(const Request&, const Request&) = default;
    };

    // What the agent answers a layout command.
    struct Answer {
        bool ok = false;
        std::string message;
        std::vector<std::string> names;  // listLayouts: the saved layouts' names, in order

        friend bool operator==(const Answer&, const Answer&) = default;
    };
    // One reply notification: the request's identifier, and its answer once it is done.
    struct Reply {
        std::string reply;
        std::optional<Answer> answer;  // nothing while it is only accepted

        friend bool operator==(const Reply&, const Reply&) = default;
    };

    static constexpr std::string_view commandKey = "command";
    static constexpr std::string_view valueKey = "value";
    static constexpr std::string_view nameKey = "name";
    static constexpr std::string_view replyKey = "reply";
    // The agent's answers to layout commands.
    static constexpr std::string_view replyName = "com.quillmarsh.vistrel.reply";
    static constexpr std::string_view stateKey = "state";
    static constexpr std::string_view accepted = "accepted";
    static constexpr std::string_view done = "done";
    static constexpr std::string_view okKey = "ok";
    static constexpr std::string_view messageKey = "message";
    static constexpr std::string_view namesKey = "names";

    // The command's name on the wire, exact and case-sensitive.
    static std::string_view name(Command command);
    static bool isLayoutCommand(Command command);
    // The request a notification carries; nothing for no user info, no "command", a
    // "command" that is not text, an unknown name, or a layout command without a reply
    // identifier (all dropped without a log line).
    static std::optional<Request> parse(const NotificationCenter::UserInfo& userInfo);
    // The user info of a layout command, as the command line posts it.
    static DefaultsValue::Dictionary layoutCommand(Command command, const std::string& name,
                                                   const std::string& reply);

    // Posts the answer to the request with this reply identifier.
    static void answer(const std::string& reply, const Answer& answer);
    // The reply a notification carries; nothing when it is malformed.
    static std::optional<Reply> parseReply(const NotificationCenter::UserInfo& userInfo);

    // "applySettings" acts on the status item, which the channel does not own: the owner
    // passes what to do (nothing while there is no status menu). The layout commands are
    // done by the owner too, which answers each once it is done; without it they are
    // answered at once that the agent cannot do them.
    using LayoutHandler = std::function<void(const Request&)>;
    explicit CommandChannel(std::function<void()> applySettings, LayoutHandler layouts = {})
        : applySettings_(std::move(applySettings)), layouts_(std::move(layouts)) {}

    // Observes the command notification for the life of the process.
    void listen();
    // Dispatches one notification's user info.
    void handle(const NotificationCenter::UserInfo& userInfo);
    // Carries out a well-formed request.
    void perform(const Request& request);

  private:
    void performLayoutCommand(const Request& request);

    std::function<void()> applySettings_;
    LayoutHandler layouts_;
    // The observer holds this token weakly instead of the channel, so a notification that
    // arrives after the channel is gone finds nothing.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace vistrel
