#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/sim/cairo_fonts.h"
#include "platform/sim/cairo_surface.h"
#include "platform/sim/sim_model.h"

namespace vistrel {

class SimDesktop;

// One Mission Control thumbnail as it is drawn: its frame (accessibility coordinates), the
// label shown under it, the window it shows, if any, and whether it is ringed as the
// thumbnail under the pointer.
struct SimScreenThumbnail {
    Rect frame;
    std::string label;
    std::optional<SimWindowId> window;
    bool highlighted = false;
};

// What to draw of the simulated screen.
struct SimScreenScene {
    // In Mission Control the wallpaper is dimmed and the thumbnails replace the windows and
    // the menu bar; the Dock stays.
    bool missionControl = false;
    std::vector<SimScreenThumbnail> thumbnails;
    std::optional<Point> pointer;
    // Pixels per point: 2 draws as a Retina display does.
    double scale = 2;
    // Every display side by side as they are arranged, not the primary one alone; outside
    // Mission Control only.
    bool everyDisplay = false;
};

// Draws the whole primary screen of a simulated desktop (or every display): the desktop (its
// windows, or Mission Control's thumbnails), then every visible window of the agent, lowest level
// first, with its alpha, its display list replayed by Cairo over frosted glass (CairoGlass)
// when the window has glass.
class SimScreenRenderer {
  public:
    explicit SimScreenRenderer(
        SimDesktop& desktop, std::filesystem::path fontDirectory = CairoFonts::defaultDirectory());

    CairoSurface render(const SimScreenScene& scene);
    // False (with a log line) when the picture could not be written.
    bool writePng(const SimScreenScene& scene, const std::filesystem::path& path);

  private:
    SimDesktop& desktop_;
    CairoFonts fonts_;
};

}  // namespace vistrel
