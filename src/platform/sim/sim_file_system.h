#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vistrel {

// The real disk, with the home folder taken from HOME (as the file log takes it) and a
// temporary folder a test can point elsewhere. Each step can be made to fail on purpose.
class SimFileSystem : public FileSystem {
  public:
    std::string homeDirectory() override;
    std::optional<std::string> makeTemporaryFolder(std::string_view prefix) override;
    FileError createFolder(const std::string& folder) override;
    FileError writeAtomically(const std::string& file, std::string_view bytes) override;
    FileError copy(const std::string& from, const std::string& to) override;
    FileError remove(const std::string& item) override;
    FileError trash(const std::string& item) override;
    bool exists(const std::string& item) override;
    std::vector<FileEntry> contentsWithModificationDates(const std::string& folder) override;

    // Where temporary folders are made; the system's temporary directory unless set.
    std::optional<std::string> temporaryDirectory;
    // Failures to answer with instead of doing the step.
    bool failTemporaryFolder = false;
    FileError writeFailure;
    // Where trashed items go; HOME's ".Trash" unless set.
    std::optional<std::string> trashDirectory;
    // Items trashed, in order, where they were.
    std::vector<std::string> trashed;
    // Copies from or to these paths fail with the description given.
    std::map<std::string, std::string> copyFailures;
};

}  // namespace vistrel
