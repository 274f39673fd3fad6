#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel {

// One item of a folder listing with its content-modification date.
struct FileEntry {
    std::string path;
    double modified = 0;  // seconds since 1970-01-01 UTC

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

// What went wrong, as the system describes it to the user (localizedDescription); an
// empty optional means success.
using FileError = std::optional<std::string>;

// FileManager and Data, for the steps the problem report takes on disk.
class FileSystem {
  public:
    virtual ~FileSystem() = default;
    // FileManager.homeDirectoryForCurrentUser.
    virtual std::string homeDirectory() = 0;
    // A new, empty folder in FileManager.temporaryDirectory named `prefix` and a unique
    // suffix (mkdtemp); nothing when it cannot be made.
    virtual std::optional<std::string> makeTemporaryFolder(std::string_view prefix) = 0;
    // FileManager.createDirectory(at:withIntermediateDirectories: false).
    virtual FileError createFolder(const std::string& folder) = 0;
    // Data.write(to:options: .atomic).
    virtual FileError writeAtomically(const std::string& file, std::string_view bytes) = 0;
    // Data(contentsOf:): the file's bytes; nothing when it cannot be read. Reading is the
    // same POSIX read on both systems, so this one implementation serves them.
    virtual std::optional<std::string> read(const std::string& file);
    // FileManager.copyItem(at:to:), folders with everything in them; fails when something
    // is already at `to`.
    virtual FileError copy(const std::string& from, const std::string& to) = 0;
    // FileManager.removeItem(at:).
    virtual FileError remove(const std::string& item) = 0;
    // FileManager.trashItem(at:resultingItemURL:): moves the item to the user's Trash.
    virtual FileError trash(const std::string& item) = 0;
    // FileManager.fileExists(atPath:).
    virtual bool exists(const std::string& item) = 0;
    // FileManager.contentsOfDirectory(at:includingPropertiesForKeys:
    // [.contentModificationDateKey]); empty when the folder cannot be read.
    virtual std::vector<FileEntry> contentsWithModificationDates(const std::string& folder) = 0;
};

}  // namespace vistrel
