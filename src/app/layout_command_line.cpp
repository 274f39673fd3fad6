#include "app/layout_command_line.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "layouts/layout_requests.h"
#include "layouts/uuid.h"
#include "platform/platform.h"
#include "settings/shared.h"

namespace vistrel {

namespace {

using Command = CommandChannel::Command;

struct Option {
    std::string_view argument;
    Command command;
    bool takesName;
};

constexpr std::array options{
    Option{LayoutCommandLine::applyArgument, Command::applyLayout, true},
    Option{LayoutCommandLine::saveArgument, Command::saveLayout, true},
    Option{LayoutCommandLine::listArgument, Command::listLayouts, false},
};

const Option& optionOf(Command command) {
    return *std::ranges::find(options, command, &Option::command);
}

LayoutCommandLine::Result failure(std::string reason) {
    return {LayoutCommandLine::failed, {}, std::move(reason)};
}

LayoutCommandLine::Result success(std::vector<std::string> lines) {
    return {LayoutCommandLine::succeeded, std::move(lines), {}};
}

// One request to the agent, waiting for its answer. It keeps itself alive until the first
// outcome, so a late answer after a time-out, or a time-out after the answer, finds nothing.
class Conversation : public std::enable_shared_from_this<Conversation> {
  public:
    explicit Conversation(LayoutCommandLine::Done done) : done_(std::move(done)) {}

    void begin(const LayoutCommandLine::Invocation& invocation) {
        Platform& p = platform();
        std::weak_ptr<Conversation> weak = shared_from_this();
        // The observer lives as long as the process; it holds the conversation weakly.
        keep_ = shared_from_this();
        p.notifications.observe(std::string(CommandChannel::replyName),
                                [weak](const NotificationCenter::UserInfo& userInfo) {
                                    if (auto self = weak.lock()) self->heard(userInfo);
                                });
        p.notifications.post(
            std::string(Shared::Command::name),
            CommandChannel::layoutCommand(invocation.command, invocation.name.value_or(""), id_));
        waitFor(LayoutCommandLine::acceptTimeout, LayoutCommandLine::notAnswering, Stage::posted);
    }

  private:
    enum class Stage { posted, accepted };

    void heard(const NotificationCenter::UserInfo& userInfo) {
        const auto reply = CommandChannel::parseReply(userInfo);
        if (!reply || reply->reply != id_) return;
        if (!reply->answer) {
            if (stage_ == Stage::posted) {
                stage_ = Stage::accepted;
                waitFor(LayoutCommandLine::doneTimeout, LayoutCommandLine::notFinished,
                        Stage::accepted);
            }
            return;
        }
        const CommandChannel::Answer& answer = *reply->answer;
        if (!answer.ok) return finish(failure(answer.message));
        std::vector<std::string> lines = answer.names;
        if (!answer.message.empty()) lines.push_back(answer.message);
        finish(success(std::move(lines)));
    }

    // Gives up with `reason` after `seconds` unless the conversation has moved past `stage`.
    void waitFor(double seconds, std::string_view reason, Stage stage) {
        std::weak_ptr<Conversation> weak = shared_from_this();
        platform().executor.main().after(seconds, [weak, reason, stage] {
            auto self = weak.lock();
            if (self && self->stage_ == stage) self->finish(failure(std::string(reason)));
        });
    }

    // Lets the conversation go once `done` has run: the observer and the timers hold it
    // weakly, so nothing reaches it afterwards.
    void finish(LayoutCommandLine::Result result) {
        auto self = std::move(keep_);
        done_(std::move(result));
    }

    LayoutCommandLine::Done done_;
    std::string id_ = UUID::random().string();
    Stage stage_ = Stage::posted;
    std::shared_ptr<Conversation> keep_;
};

}  // namespace

std::optional<LayoutCommandLine::Invocation> LayoutCommandLine::requested(
    const std::vector<std::string>& arguments) {
    for (auto at = arguments.begin(); at != arguments.end(); ++at) {
        const auto option = std::ranges::find(options, *at, &Option::argument);
        if (option == options.end()) continue;
        Invocation invocation{option->command, std::nullopt};
        if (option->takesName && std::next(at) != arguments.end()) invocation.name = *std::next(at);
        return invocation;
    }
    return std::nullopt;
}

bool LayoutCommandLine::agentRunning() {
    Workspace& workspace = platform().workspace;
    const std::string identifier =
        workspace.mainBundle().identifier.value_or(std::string(Shared::domain));
    const Pid own = workspace.ownPid();
    return std::ranges::any_of(workspace.runningApplications(), [&](const RunningApplication& a) {
        return a.bundleIdentifier == identifier && a.pid != own && !a.terminated;
    });
}

void LayoutCommandLine::start(const Invocation& invocation, Done done) {
    const Option& option = optionOf(invocation.command);
    if (option.takesName && !invocation.name) {
        return done(failure(std::string(option.argument) + " needs a layout's name"));
    }
    if (!agentRunning()) {
        if (invocation.command == Command::listLayouts)
            return done(success(LayoutRequests::names()));
        return done(failure(std::string(notRunning)));
    }
    std::make_shared<Conversation>(std::move(done))->begin(invocation);
}

}  // namespace vistrel
