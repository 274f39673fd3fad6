#include "png_writer.h"

#include <zlib.h>

#include <string_view>

namespace vistrel {

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
constexpr char bitDepth = 8;
constexpr char rgbaColourType = 6;
constexpr char noFilter = 0;

void putBigEndian(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<char>((value >> shift) & 0xFF));
}

void putChunk(std::string& out, std::string_view type, const std::string& data) {
    putBigEndian(out, static_cast<std::uint32_t>(data.size()));
    const std::string typed = std::string(type) + data;
    out += typed;
    putBigEndian(out,
                 static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(typed.data()),
                                                  static_cast<uInt>(typed.size()))));
}

std::string deflated(const std::string& raw) {
    uLongf length = compressBound(static_cast<uLong>(raw.size()));
    std::string out(length, '\0');
    if (compress2(reinterpret_cast<Bytef*>(out.data()), &length,
                  reinterpret_cast<const Bytef*>(raw.data()), static_cast<uLong>(raw.size()),
                  Z_BEST_COMPRESSION) != Z_OK) {
        return {};
    }
    out.resize(length);
    return out;
}

}  // namespace

std::string PngWriter::encode(int size, const std::vector<std::uint8_t>& rgba) {
    std::string header;
    putBigEndian(header, static_cast<std::uint32_t>(size));
    putBigEndian(header, static_cast<std::uint32_t>(size));
    header += {bitDepth, rgbaColourType, 0, 0, 0};
    const auto rowBytes = static_cast<std::size_t>(size) * 4;
    std::string raw;
    raw.reserve((rowBytes + 1) * static_cast<std::size_t>(size));
    for (std::size_t y = 0; y < static_cast<std::size_t>(size); ++y) {
        raw.push_back(noFilter);
        raw.append(reinterpret_cast<const char*>(rgba.data() + y * rowBytes), rowBytes);
    }
    const std::string data = deflated(raw);
    if (data.empty()) return {};
    std::string out(signature);
    putChunk(out, "IHDR", header);
    putChunk(out, "IDAT", data);
    putChunk(out, "IEND", "");
    return out;
}

}  // namespace vistrel
