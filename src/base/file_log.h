#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/executor.h"
#include "platform/file_writer.h"

namespace vistrel {

// A small rotating text log in the user's Logs folder: "~/Library/Logs/<name>/<name>.log",
// moved to "<name>.1.log" when it grows past a million bytes, so at most two files exist.
// Callers on any thread only format a timestamp and hand the line to one serial queue;
// every file operation happens there. Each line goes to the system as the queue runs it, so
// a crash or a force-quit loses none that was written. A line that cannot be written is
// lost; the first failure of a run of failures is told to `reportFailure`, if given.
class FileLog {
  public:
    static constexpr std::uintmax_t defaultMaxBytes = 1'000'000;
    static constexpr std::string_view queueLabel = "com.quillmarsh.filelog";
    // Called on the log's queue with a line saying why the file cannot be written.
    using FailureReport = std::function<void(std::string_view)>;

    FileLog(std::string_view name, const std::filesystem::path& home, Executor& executor,
            Clock& clock, FileWriter& files, std::uintmax_t maxBytes = defaultMaxBytes,
            FailureReport reportFailure = {});
    ~FileLog();
    FileLog(const FileLog&) = delete;
    FileLog& operator=(const FileLog&) = delete;

    // Stamps the line with the time now and returns at once; the queue appends it.
    void write(std::string_view level, std::string_view message);
    // Waits until every earlier line is written and asks the system to put the file on disk.
    void flush();
    // The log files that exist, oldest first.
    std::vector<std::filesystem::path> files() const;

    const std::filesystem::path& directory() const;
    const std::filesystem::path& current() const;
    const std::filesystem::path& previous() const;

  private:
    struct Writer;
    std::shared_ptr<Writer> writer_;
    std::shared_ptr<SerialQueue> queue_;
    Clock& clock_;
};

}  // namespace vistrel
