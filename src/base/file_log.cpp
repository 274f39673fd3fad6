#include "base/file_log.h"

#include <system_error>

#include "base/iso8601.h"

namespace vistrel {

namespace fs = std::filesystem;

// The state the queue works on. Queue tasks share it, so a line handed over just before
// the log is freed is still written safely.
struct FileLog::Writer {
    FileWriter& files;
    FailureReport reportFailure;
    fs::path directory;
    fs::path current;
    fs::path previous;
    std::uintmax_t maxBytes;
    std::unique_ptr<AppendingFile> handle;
    // Set by the first failure of a run, cleared by the next line that is written.
    bool failureReported = false;

    Writer(FileWriter& files, FailureReport reportFailure)
        : files(files), reportFailure(std::move(reportFailure)) {}

    void close() { handle.reset(); }

    std::error_code open() {
        // Without a home folder there is nowhere to keep the log.
        if (directory.is_relative())
            return std::make_error_code(std::errc::no_such_file_or_directory);
        std::error_code error;
        fs::create_directories(directory, error);
        if (!error) handle = files.openForAppending(current, error);
        return error;
    }

    void append(const std::string& line) {
        std::error_code error = handle ? std::error_code() : open();
        if (!error) error = handle->append(line);
        if (error) {
            close();
            failed(error);
            return;
        }
        failureReported = false;
        const auto size = handle->size();
        // A file whose size cannot be read is opened afresh for the next line.
        if (!size) {
            close();
        } else if (*size > maxBytes) {
            rotate();
        }
    }

    void failed(const std::error_code& error) {
        if (failureReported || !reportFailure) return;
        failureReported = true;
        reportFailure("file log: cannot write " + current.filename().string() + " (" +
                      error.message() + ")");
    }

    void rotate() {
        close();
        std::error_code ignored;
        fs::remove(previous, ignored);
        fs::rename(current, previous, ignored);
    }

    void sync() {
        if (handle) handle->synchronize();
    }
};

FileLog::FileLog(std::string_view name, const fs::path& home, Executor& executor, Clock& clock,
                 FileWriter& files, std::uintmax_t maxBytes, FailureReport reportFailure)
    : writer_(std::make_shared<Writer>(files, std::move(reportFailure))),
      queue_(executor.makeQueue(std::string(queueLabel), QualityOfService::utility)),
      clock_(clock) {
    const std::string base(name);
    writer_->directory = home / "Library" / "Logs" / base;
    writer_->current = writer_->directory / (base + ".log");
    writer_->previous = writer_->directory / (base + ".1.log");
    writer_->maxBytes = maxBytes;
}

FileLog::~FileLog() = default;

void FileLog::write(std::string_view level, std::string_view message) {
    std::string line = iso8601(clock_.now());
    line.reserve(line.size() + level.size() + message.size() + 3);
    line.append(" ").append(level).append(" ").append(message).append("\n");
    queue_->async([writer = writer_, line = std::move(line)] { writer->append(line); });
}

void FileLog::flush() {
    queue_->sync([writer = writer_] { writer->sync(); });
}

std::vector<fs::path> FileLog::files() const {
    std::vector<fs::path> existing;
    std::error_code error;
    if (fs::exists(writer_->previous, error)) existing.push_back(writer_->previous);
    if (fs::exists(writer_->current, error)) existing.push_back(writer_->current);
    return existing;
}

const fs::path& FileLog::directory() const {
    return writer_->directory;
}
const fs::path& FileLog::current() const {
    return writer_->current;
}
const fs::path& FileLog::previous() const {
    return writer_->previous;
}

}  // namespace vistrel
