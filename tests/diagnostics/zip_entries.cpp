#include "zip_entries.h"

#include "platform/sim/sim_zip_reader.h"

namespace vistrel::testing {

std::map<std::string, std::string> zipEntries(const std::filesystem::path& archive) {
    return readZipEntries(archive.string());
}

std::optional<std::string> fileInReport(const std::filesystem::path& archive,
                                        const std::string& name) {
    for (const auto& [entry, bytes] : zipEntries(archive)) {
        const std::size_t slash = entry.find('/');
        if (slash != std::string::npos && entry.substr(slash + 1) == name) return bytes;
    }
    return std::nullopt;
}

}  // namespace vistrel::testing
