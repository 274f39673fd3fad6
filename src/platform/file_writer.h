#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>

namespace vistrel {

// One file open for appending. Bytes go straight to the system with no buffer of their
// own, so a byte handed over has left the process when the call returns. Freeing it
// closes the file (close(2), failures ignored).
class AppendingFile {
  public:
    virtual ~AppendingFile() = default;
    // write(2) until every byte is out: nothing on success, otherwise why it stopped (a full
    // disk answers "no space left on device").
    virtual std::error_code append(std::string_view bytes) = 0;
    // fstat(2)'s size: none when it fails.
    virtual std::optional<std::uintmax_t> size() = 0;
    // fsync(2): asks the system to put the file on disk; failures are ignored.
    virtual void synchronize() = 0;
};

// Opens files for appending. macOS and the simulated desktop both make the POSIX calls;
// the simulation can also fail the way a full disk does.
class FileWriter {
  public:
    virtual ~FileWriter() = default;
    // open(2) with O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC and mode 0644: the open file,
    // or null with `error` saying why.
    virtual std::unique_ptr<AppendingFile> openForAppending(const std::filesystem::path& path,
                                                            std::error_code& error) = 0;
};

}  // namespace vistrel
