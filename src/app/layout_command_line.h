#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/command_channel.h"

namespace vistrel {

// `Vistrel --apply-layout NAME`, `--save-layout NAME` and `--list-layouts`: a script's way to
// the Layouts feature. The process asks the running agent on the command channel and waits
// for its answer on the reply notification; with no agent running, the listing reads the
// saved layouts itself and the others fail. Main thread only.
struct LayoutCommandLine {
    static constexpr std::string_view applyArgument = "--apply-layout";
    static constexpr std::string_view saveArgument = "--save-layout";
    static constexpr std::string_view listArgument = "--list-layouts";
    static constexpr std::string_view notRunning = "Vistrel is not running";
    static constexpr std::string_view notAnswering = "Vistrel did not answer";
    static constexpr std::string_view notFinished = "Vistrel did not finish in time";
    // The agent says it is at work at once; this long without a word means it hangs.
    static constexpr double acceptTimeout = 5;
    // A restore may launch applications and wait for their windows, about ten seconds each.
    static constexpr double doneTimeout = 120;

    struct Invocation {
        CommandChannel::Command command = CommandChannel::Command::listLayouts;
        // The layout's name; nothing when the argument after the option is missing.
        std::optional<std::string> name;

        friend bool operator==(const Invocation&, const Invocation&) = default;
    };

    static constexpr int succeeded = 0;
    static constexpr int failed = 1;

    // What the process prints and its exit status: succeeded with the lines for standard
    // output, or failed with one line saying why for standard error.
    struct Result {
        int status = succeeded;
        std::vector<std::string> lines;
        std::string reason;

        friend bool operator==(const Result&, const Result&) = default;
    };
    using Done = std::function<void(Result)>;

    // The layout command among the process's arguments (the first, when there are more),
    // with the argument after it as the name; nothing when there is none.
    static std::optional<Invocation> requested(const std::vector<std::string>& arguments);
    // Whether another process of this bundle runs: NSRunningApplication's list for the
    // bundle's identifier, leaving out this process.
    static bool agentRunning();
    // Carries the command out; `done` runs once, on the main thread.
    static void start(const Invocation& invocation, Done done);
};

}  // namespace vistrel
