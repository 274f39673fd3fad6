#include "base/log.h"

#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>

#include "base/file_log.h"
#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view fileName = "Vistrel";
constexpr std::string_view fallbackSubsystem = "com.quillmarsh.vistrel";
constexpr std::string_view category = "core";
constexpr std::string_view infoWord = "INFO";
constexpr std::string_view errorWord = "ERROR";

// The file log belongs to the platform it was made on; a new platform gets a new one.
struct FileLogSlot {
    std::mutex mutex;
    std::unique_ptr<FileLog> log;
    std::uint64_t generation = 0;
    std::string subsystem;
};

FileLogSlot& slot() {
    static FileLogSlot instance;
    return instance;
}

std::filesystem::path homeDirectory() {
    const char* home = std::getenv("HOME");
    return home != nullptr ? std::filesystem::path(home) : std::filesystem::path();
}

// The file log cannot tell of its own trouble in its file: the unified log hears of it.
FileLog::FailureReport reportToSystemLog(SystemLog& systemLog, std::string subsystem) {
    return [&systemLog, subsystem = std::move(subsystem)](std::string_view message) {
        systemLog.write(subsystem, category, LogLevel::error, message);
    };
}

FileLogSlot& current() {
    FileLogSlot& s = slot();
    std::lock_guard lock(s.mutex);
    if (!s.log || s.generation != platformGeneration()) {
        Platform& p = platform();
        s.subsystem = p.workspace.mainBundle().identifier.value_or(std::string(fallbackSubsystem));
        s.log = std::make_unique<FileLog>(fileName, homeDirectory(), p.executor, p.clock,
                                          p.fileWriter, FileLog::defaultMaxBytes,
                                          reportToSystemLog(p.systemLog, s.subsystem));
        s.generation = platformGeneration();
    }
    return s;
}

void write(LogLevel level, std::string_view word, std::string_view message) {
    FileLogSlot& s = current();
    platform().systemLog.write(s.subsystem, category, level, message);
    s.log->write(word, message);
}

}  // namespace

void Log::info(std::string_view message) {
    write(LogLevel::info, infoWord, message);
}

void Log::error(std::string_view message) {
    write(LogLevel::error, errorWord, message);
}

FileLog& Log::file() {
    return *current().log;
}

}  // namespace vistrel
