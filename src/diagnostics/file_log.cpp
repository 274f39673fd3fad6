#include "diagnostics/file_log.h"

#include <unistd.h>

#include <cstdio>
#include <system_error>

#include "diagnostics/iso8601.h"

namespace vistrel {

namespace fs = std::filesystem;

// The state the queue works on. Queue tasks share it, so a line handed over just before
// the log is freed is still written safely.
struct FileLog::Writer {
    fs::path directory;
    fs::path current;
    fs::path previous;
    std::uintmax_t maxBytes;
    std::FILE* handle = nullptr;

    ~Writer() { close(); }

    void close() {
        if (handle != nullptr) std::fclose(handle);
        handle = nullptr;
    }

    bool open() {
        // Without a home folder there is nowhere to keep the log.
        if (directory.is_relative()) return false;
        std::error_code error;
        fs::create_directories(directory, error);
        if (error) return false;
        handle = std::fopen(current.c_str(), "ab");
        return handle != nullptr;
    }

    void append(const std::string& line) {
        if (handle == nullptr && !open()) return;
        const bool written = std::fwrite(line.data(), 1, line.size(), handle) == line.size();
        const long size = written ? std::ftell(handle) : -1;
        if (size < 0) {
            close();
            return;
        }
        if (static_cast<std::uintmax_t>(size) > maxBytes) rotate();
    }

    void rotate() {
        close();
        std::error_code ignored;
        fs::remove(previous, ignored);
        fs::rename(current, previous, ignored);
    }

    void sync() {
        if (handle == nullptr) return;
        std::fflush(handle);
        ::fsync(::fileno(handle));
    }
};

FileLog::FileLog(std::string_view name, const fs::path& home, Executor& executor, Clock& clock,
                 std::uintmax_t maxBytes)
    : writer_(std::make_shared<Writer>()),
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
