#include "icns_writer.h"

#include <cstdint>

namespace vistrel {

namespace {

constexpr std::string_view magic = "icns";
constexpr std::size_t headerBytes = 8;

void putBigEndian(std::string& out, std::size_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<char>((value >> shift) & 0xFF));
}

}  // namespace

std::string IcnsWriter::encode(const std::vector<Entry>& entries) {
    std::string body;
    for (const Entry& entry : entries) {
        body += entry.type;
        putBigEndian(body, headerBytes + entry.png.size());
        body += entry.png;
    }
    std::string out(magic);
    putBigEndian(out, headerBytes + body.size());
    return out + body;
}

}  // namespace vistrel
