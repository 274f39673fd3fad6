#include "platform/sim/sim_file_writer.h"

namespace vistrel {

namespace {

// A real open file behind the simulated disk's fault.
class SimAppendingFile : public AppendingFile {
  public:
    SimAppendingFile(std::unique_ptr<AppendingFile> file, std::shared_ptr<SimFileWriter::Disk> disk)
        : file_(std::move(file)), disk_(std::move(disk)) {}

    std::error_code append(std::string_view bytes) override {
        if (disk_->full) {
            ++disk_->refused;
            return std::make_error_code(std::errc::no_space_on_device);
        }
        return file_->append(bytes);
    }
    std::optional<std::uintmax_t> size() override { return file_->size(); }
    void synchronize() override { file_->synchronize(); }

  private:
    std::unique_ptr<AppendingFile> file_;
    std::shared_ptr<SimFileWriter::Disk> disk_;
};

}  // namespace

std::unique_ptr<AppendingFile> SimFileWriter::openForAppending(const std::filesystem::path& path,
                                                               std::error_code& error) {
    auto file = PosixFileWriter::openForAppending(path, error);
    if (!file) return nullptr;
    return std::make_unique<SimAppendingFile>(std::move(file), disk_);
}

}  // namespace vistrel
