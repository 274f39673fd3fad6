#pragma once

#include <string_view>

#include "settings/command_channel.h"

namespace vistrel {

// The agent's end of the Layouts feature for scripts: the "vistrel://layout/..." URLs the
// system hands over when something opens one, and the layout commands the command line
// posts on the command channel, each answered once it is done. Main thread only.
struct LayoutCommands {
    // Where a request came from, as its log lines say.
    static constexpr std::string_view fromURL = "from a URL";
    static constexpr std::string_view fromCommandLine = "from the command line";

    // Does what the URL asks, or refuses it with one log line and does nothing.
    static void openURL(std::string_view url);
    // Does one layout command and answers it on the reply notification.
    static void perform(const CommandChannel::Request& request);
};

}  // namespace vistrel
