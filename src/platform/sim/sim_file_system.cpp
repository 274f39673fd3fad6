#include "platform/sim/sim_file_system.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vistrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view uniqueSuffixPattern = "XXXXXX";

FileError describe(const std::error_code& error) {
    if (!error) return std::nullopt;
    return error.message();
}

double secondsSince1970(fs::file_time_type time) {
    const auto system = std::chrono::file_clock::to_sys(time);
    return std::chrono::duration<double>(system.time_since_epoch()).count();
}

}  // namespace

std::string SimFileSystem::homeDirectory() {
    const char* home = std::getenv("HOME");
    return home != nullptr ? std::string(home) : std::string();
}

std::optional<std::string> SimFileSystem::makeTemporaryFolder(std::string_view prefix) {
    if (failTemporaryFolder) return std::nullopt;
    std::error_code error;
    const fs::path parent = temporaryDirectory.value_or(fs::temp_directory_path(error).string());
    if (error) return std::nullopt;
    std::string pattern = parent / (std::string(prefix) + std::string(uniqueSuffixPattern));
    if (::mkdtemp(pattern.data()) == nullptr) return std::nullopt;
    return pattern;
}

FileError SimFileSystem::createFolder(const std::string& folder) {
    std::error_code error;
    if (!fs::create_directory(folder, error) && !error) return "the folder already exists";
    return describe(error);
}

FileError SimFileSystem::writeAtomically(const std::string& file, std::string_view bytes) {
    if (writeFailure) return writeFailure;
    // Written next to its place, then moved over it, so a reader never sees half a file.
    const std::string partial = file + ".partial";
    {
        std::ofstream out(partial, std::ios::binary);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out) return "the file could not be written";
    }
    std::error_code error;
    fs::rename(partial, file, error);
    return describe(error);
}

FileError SimFileSystem::copy(const std::string& from, const std::string& to) {
    for (const std::string& path : {from, to}) {
        if (const auto failure = copyFailures.find(path); failure != copyFailures.end())
            return failure->second;
    }
    std::error_code error;
    if (fs::exists(to, error)) return "an item with the same name already exists";
    fs::copy(from, to, fs::copy_options::recursive, error);
    return describe(error);
}

FileError SimFileSystem::remove(const std::string& item) {
    std::error_code error;
    if (!fs::remove(item, error) && !error) return "no such file";
    return describe(error);
}

FileError SimFileSystem::trash(const std::string& item) {
    std::error_code error;
    const fs::path bin = trashDirectory.value_or((fs::path(homeDirectory()) / ".Trash").string());
    fs::create_directories(bin, error);
    if (error) return describe(error);
    fs::rename(item, bin / fs::path(item).filename(), error);
    if (!error) trashed.push_back(item);
    return describe(error);
}

bool SimFileSystem::exists(const std::string& item) {
    std::error_code error;
    return fs::exists(item, error);
}

std::vector<FileEntry> SimFileSystem::contentsWithModificationDates(const std::string& folder) {
    std::vector<FileEntry> entries;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const fs::file_time_type modified = it->last_write_time(error);
        if (error) return {};
        entries.push_back({it->path().string(), secondsSince1970(modified)});
    }
    return error ? std::vector<FileEntry>{} : entries;
}

}  // namespace vistrel
