#pragma once

#include "platform/file_system.h"

namespace vistrel {

// FileManager, Data and mkdtemp.
class MacFileSystem : public FileSystem {
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
};

}  // namespace vistrel
