#pragma once

#include <string>
#include <vector>

namespace vistrel {

// An Apple icon image (.icns): the magic "icns" and the file's length, then one entry a
// picture, each its four-letter type, its length (the eight bytes of type and length
// included) and a PNG; every number big-endian. The types name each picture's size: icp4
// 16 px, ic11 16 pt at 2x, icp5 32 px, ic12 32 pt at 2x, ic07 128 px, ic13 128 pt at 2x,
// ic08 256 px, ic14 256 pt at 2x, ic09 512 px, ic10 512 pt at 2x (as the format's public
// descriptions list them: the Apple Icon Image format article, and the readers and writers
// of naotsugu/icons and hoereth/imageio-icns).
struct IcnsWriter {
    struct Entry {
        std::string type;  // four letters
        std::string png;
    };
    static std::string encode(const std::vector<Entry>& entries);
};

}  // namespace vistrel
