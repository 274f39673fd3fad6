#include "platform/sim/sim_archiver.h"

#include <zip.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace vistrel {

namespace fs = std::filesystem;

namespace {

// libzip reads a file source to its end when given this length.
constexpr zip_int64_t toTheEnd = -1;

// What ditto reports when it gives up, with libzip's reason.
std::string failed(zip_t* archive) {
    return std::string("the archive could not be written: ") + zip_strerror(archive);
}

// Everything under the folder, sorted so the archive lists it in a stable order.
std::vector<fs::path> itemsUnder(const fs::path& folder) {
    std::vector<fs::path> items;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        items.push_back(entry.path());
    std::sort(items.begin(), items.end());
    return items;
}

bool addItem(zip_t* archive, const fs::path& item, const std::string& name) {
    if (fs::is_directory(item)) return zip_dir_add(archive, name.c_str(), ZIP_FL_ENC_UTF_8) >= 0;
    zip_source_t* source = zip_source_file(archive, item.c_str(), 0, toTheEnd);
    if (source == nullptr) return false;
    if (zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8) < 0) {
        zip_source_free(source);
        return false;
    }
    return true;
}

}  // namespace

std::optional<std::string> SimArchiver::zip(const std::string& folderPath,
                                            const std::string& archive) {
    const fs::path folder = folderPath;
    if (failure) return failure;
    std::error_code error;
    if (!fs::is_directory(folder, error)) return "no folder at " + folderPath;
    int status = 0;
    zip_t* zip = zip_open(archive.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &status);
    if (zip == nullptr) return "the archive could not be created at " + archive;

    const fs::path top = folder.filename();
    bool added = zip_dir_add(zip, top.c_str(), ZIP_FL_ENC_UTF_8) >= 0;
    for (const fs::path& item : itemsUnder(folder)) {
        if (!added) break;
        added = addItem(zip, item, (top / fs::relative(item, folder)).generic_string());
    }
    if (!added || zip_close(zip) != 0) {
        std::string reason = failed(zip);
        zip_discard(zip);
        return reason;
    }
    ++archivesWritten;
    return std::nullopt;
}

}  // namespace vistrel
