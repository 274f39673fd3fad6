#include "platform/posix/posix_file_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace vistrel {

namespace {

constexpr mode_t readableByAll = 0644;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

class PosixAppendingFile : public AppendingFile {
  public:
    explicit PosixAppendingFile(int descriptor) : descriptor_(descriptor) {}
    ~PosixAppendingFile() override { ::close(descriptor_); }
    PosixAppendingFile(const PosixAppendingFile&) = delete;
    PosixAppendingFile& operator=(const PosixAppendingFile&) = delete;

    std::error_code append(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0) {
                // A signal that came before anything was written leaves nothing to undo.
                if (errno == EINTR) continue;
                return lastError();
            }
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return {};
    }

    std::optional<std::uintmax_t> size() override {
        struct stat status {};
        if (::fstat(descriptor_, &status) != 0) return std::nullopt;
        return static_cast<std::uintmax_t>(status.st_size);
    }

    void synchronize() override { ::fsync(descriptor_); }

  private:
    int descriptor_;
};

}  // namespace

std::unique_ptr<AppendingFile> PosixFileWriter::openForAppending(const std::filesystem::path& path,
                                                                 std::error_code& error) {
    const int descriptor =
        ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, readableByAll);
    if (descriptor < 0) {
        error = lastError();
        return nullptr;
    }
    error.clear();
    return std::make_unique<PosixAppendingFile>(descriptor);
}

}  // namespace vistrel
