#pragma once

#include <string_view>

namespace vistrel {

class FileLog;

// The agent's one logging entry point: every line goes to the unified system log and to
// the rotating file "~/Library/Logs/Vistrel/Vistrel.log". Callable from any thread; the
// caller pays for a timestamp and one hand-off, never for file work.
struct Log {
    static void info(std::string_view message);
    static void error(std::string_view message);

    // The file log of the installed platform, made on first use.
    static FileLog& file();
};

}  // namespace vistrel
