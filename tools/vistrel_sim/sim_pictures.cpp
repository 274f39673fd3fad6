#include "sim_pictures.h"

#include <cairo.h>

#include <string>

#include "platform/sim/cairo_fonts.h"
#include "platform/sim/sim_scene.h"

namespace vistrel {

std::vector<SimScreenThumbnail> screenThumbnails(SimDesktop& desktop,
                                                 std::optional<SimWindowId> hovered) {
    std::vector<SimScreenThumbnail> result;
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        const SimWindow* window = desktop.window(thumbnail.window);
        result.push_back({thumbnail.frame, window != nullptr ? window->title : std::string(),
                          thumbnail.window, thumbnail.window == hovered});
    }
    return result;
}

std::optional<SimThumbnail> largestThumbnail(SimDesktop& desktop) {
    std::optional<SimThumbnail> largest;
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        if (!largest || thumbnail.frame.area() > largest->frame.area()) largest = thumbnail;
    }
    return largest;
}

bool writeAlertPicture(SimDesktop& desktop, const AlertContent& alert,
                       const std::optional<SimReportFields>& fields,
                       const std::filesystem::path& path) {
    SimScreenScene scene;
    CairoSurface surface = SimScreenRenderer(desktop).render(scene);
    CairoFonts fonts;
    cairo_t* cr = cairo_create(surface.get());
    cairo_scale(cr, scene.scale, scene.scale);
    CairoAlertPainter(cr, fonts, simPrimaryScreen).paint(alert, fields);
    cairo_destroy(cr);
    return surface.writePng(path);
}

}  // namespace vistrel
