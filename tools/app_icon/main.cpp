// vistrel-app-icon OUTPUT.icns [PICTURES_FOLDER]: draws Vistrel's application icon and
// writes it as an .icns file, and each size as a PNG into the folder when one is named.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "app_icon.h"
#include "png_writer.h"

namespace {

bool write(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    if (out) return true;
    std::cerr << "vistrel-app-icon: could not write " << path.string() << "\n";
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: vistrel-app-icon OUTPUT.icns [PICTURES_FOLDER]\n";
        return 2;
    }
    const std::string icns = vistrel::AppIcon::icns();
    if (icns.empty()) {
        std::cerr << "vistrel-app-icon: the pictures could not be compressed\n";
        return 1;
    }
    if (!write(argv[1], icns)) return 1;
    if (argc == 3) {
        const std::filesystem::path folder = argv[2];
        std::filesystem::create_directories(folder);
        for (const auto& size : vistrel::AppIcon::sizes) {
            const vistrel::Raster raster = vistrel::AppIcon::render(size.pixels);
            const std::string name =
                "icon_" + std::string(size.type) + "_" + std::to_string(size.pixels) + ".png";
            if (!write(folder / name, vistrel::PngWriter::encode(size.pixels, raster.rgba())))
                return 1;
        }
    }
    return 0;
}
