#pragma once

#include <atomic>
#include <memory>

#include "platform/posix/posix_file_writer.h"

namespace vistrel {

// Real files, as on the Mac, with one fault to stage: a full disk, on which every append
// fails with "no space left on device" and leaves the file as it was. Files opened before
// the disk filled up fail too, and files outlive the writer safely.
class SimFileWriter : public PosixFileWriter {
  public:
    std::unique_ptr<AppendingFile> openForAppending(const std::filesystem::path& path,
                                                    std::error_code& error) override;

    void setDiskFull(bool full) { disk_->full = full; }
    // Appends refused because the disk was full.
    int refusedAppends() const { return disk_->refused; }

    struct Disk {
        std::atomic<bool> full = false;
        std::atomic<int> refused = 0;
    };

  private:
    std::shared_ptr<Disk> disk_ = std::make_shared<Disk>();
};

}  // namespace vistrel
