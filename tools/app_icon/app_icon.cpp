#include "app_icon.h"

#include <algorithm>

#include "icns_writer.h"
#include "png_writer.h"
#include "ui/kit/dfkit_mark.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {

// The rasterizer has no blur: rings of faint black, each a little larger than the last and
// all dropped below the plate, add up to a shadow that is darkest under the plate's edge and
// fades out over the spread.
void drawShadow(Raster& raster, Rect plate, double scale) {
    const Rect dropped = plate.offsetBy(0, AppIcon::shadowDrop);
    const double step = AppIcon::shadowSpread / AppIcon::shadowRings;
    for (int ring = AppIcon::shadowRings; ring >= 1; --ring) {
        const double grow = ring * step;
        raster.fill(Path::roundedRect(dropped.insetBy(-grow, -grow), AppIcon::plateRadius + grow),
                    {0, 0, 0, AppIcon::shadowRingAlpha}, scale, {0, 0});
    }
}

}  // namespace

Raster AppIcon::render(int pixels) {
    Raster raster(pixels);
    const double scale = pixels / grid;
    const Rect plate{plateInset, plateInset, grid - 2 * plateInset, grid - 2 * plateInset};
    if (pixels > largestUnshadowed) drawShadow(raster, plate, scale);
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
