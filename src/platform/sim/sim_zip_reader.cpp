#include "platform/sim/sim_zip_reader.h"

#include <zip.h>

namespace vistrel {

std::map<std::string, std::string> readZipEntries(const std::string& archive) {
    std::map<std::string, std::string> entries;
    int status = 0;
    zip_t* zip = zip_open(archive.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &status);
    if (zip == nullptr) return entries;
    const zip_int64_t count = zip_get_num_entries(zip, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_stat_index(zip, static_cast<zip_uint64_t>(i), 0, &stat) != 0) continue;
        std::string bytes(stat.size, '\0');
        if (zip_file_t* file = zip_fopen_index(zip, static_cast<zip_uint64_t>(i), 0)) {
            zip_fread(file, bytes.data(), stat.size);
            zip_fclose(file);
        }
        entries[stat.name] = bytes;
    }
    zip_close(zip);
    return entries;
}

}  // namespace vistrel
