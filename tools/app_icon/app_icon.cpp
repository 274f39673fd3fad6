#include "app_icon.h"

#include <algorithm>

#include "icns_writer.h"
#include "png_writer.h"
#include "ui/kit/dfkit_mark.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel {

Raster AppIcon::render(int pixels) {
    Raster raster(pixels);
    const double scale = pixels / grid;
    const Rect plate{plateInset, plateInset, grid - 2 * plateInset, grid - 2 * plateInset};
    raster.fill(Path::roundedRect(plate, plateRadius), DFKit::indigo.resolved(Appearance::light),
                scale, {0, 0});
    // The mark's own outline sits off the centre of its design square: centre what it draws.
    const Path mark = markPath(DFKitMark::vistrel);
    const Rect bounds = mark.controlBounds();
    const double markScale = markSize / std::max(bounds.width, bounds.height);
    const Point offset{(grid / 2 - bounds.midX() * markScale) * scale,
                       (grid / 2 - bounds.midY() * markScale) * scale};
    raster.fill(mark, Color::white(), markScale * scale, offset);
    return raster;
}

std::string AppIcon::icns() {
    std::vector<IcnsWriter::Entry> entries;
    for (const Size& size : sizes) {
        const Raster raster = render(size.pixels);
        std::string png = PngWriter::encode(size.pixels, raster.rgba());
        if (png.empty()) return {};
        entries.push_back({std::string(size.type), std::move(png)});
    }
    return IcnsWriter::encode(entries);
}

}  // namespace vistrel
