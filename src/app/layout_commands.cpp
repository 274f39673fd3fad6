#include "app/layout_commands.h"

#include <string>

#include "layouts/layout_requests.h"
#include "layouts/layout_url.h"

namespace vistrel {

namespace {

using Command = CommandChannel::Command;

// Answers the request with what was done once it is.
LayoutRequests::Done answering(const std::string& reply) {
    return [reply](const LayoutRequests::Outcome& outcome) {
        CommandChannel::answer(reply, {outcome.ok, outcome.message, {}});
    };
}

}  // namespace

void LayoutCommands::openURL(std::string_view text) {
    const LayoutURL::Parsed parsed = LayoutURL::parse(text);
    if (!parsed.url) return LayoutRequests::logRefusal(fromURL, parsed.refusal);
    const LayoutURL& url = *parsed.url;
    switch (url.action) {
        case LayoutURL::Action::apply:
            return LayoutRequests::apply(url.name, fromURL, {});
        case LayoutURL::Action::save:
            return LayoutRequests::save(url.name, fromURL, {});
        case LayoutURL::Action::undo:
            return LayoutRequests::undo(fromURL, {});
    }
}

void LayoutCommands::perform(const CommandChannel::Request& request) {
    switch (request.command) {
        case Command::applyLayout:
            return LayoutRequests::apply(request.name, fromCommandLine, answering(request.reply));
        case Command::saveLayout:
            return LayoutRequests::save(request.name, fromCommandLine, answering(request.reply));
        case Command::listLayouts:
            return CommandChannel::answer(request.reply, {true, {}, LayoutRequests::names()});
        default:
            return;
    }
}

}  // namespace vistrel
