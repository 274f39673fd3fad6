#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/hotkey.h"
#include "platform/defaults.h"

namespace vistrel {

// The one preferences domain the agent and its Settings app share.
struct Shared {
    static constexpr std::string_view domain = "com.quillmarsh.vistrel";

    // The shared store: the standard defaults when this process is the agent itself,
    // otherwise the suite named after the domain (falling back to the standard defaults).
    // Made anew at each call; callers that read often keep what they got.
    static std::shared_ptr<DefaultsStore> store();

    struct Command {
        // The distributed notification the Settings app commands the agent through.
        static constexpr std::string_view name = "com.quillmarsh.vistrel.command";
    };

    struct Key {
        // "hotkey." + the hotkey's case name + ".disabled".
        static std::string hotkeyDisabled(Hotkey hotkey);
    };
};

}  // namespace vistrel
