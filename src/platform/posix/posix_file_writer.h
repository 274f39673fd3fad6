#pragma once

#include "platform/file_writer.h"

namespace vistrel {

// The file writer of every POSIX system: the macOS build uses it as it is, the simulated
// desktop through a subclass that can fail on purpose.
class PosixFileWriter : public FileWriter {
  public:
    std::unique_ptr<AppendingFile> openForAppending(const std::filesystem::path& path,
                                                    std::error_code& error) override;
};

}  // namespace vistrel
