#pragma once

#include <cairo.h>

#include <filesystem>
#include <map>
#include <string>

#include "platform/canvas.h"

namespace vistrel {

// The fonts the simulator draws text with: the agent's bundled TrueType files, loaded with
// FreeType. The system font is stood in for by the bundled display font, so pictures come
// out the same on every machine. A font file that cannot be loaded is logged once and its
// text falls back to the system font.
class CairoFonts {
  public:
    // The folder holding "<PostScript name>.ttf" files; by default the repository's
    // resources/fonts.
    explicit CairoFonts(std::filesystem::path directory = defaultDirectory());
    ~CairoFonts();
    CairoFonts(const CairoFonts&) = delete;
    CairoFonts& operator=(const CairoFonts&) = delete;

    static std::filesystem::path defaultDirectory();

    // The face to draw a font with, owned by this object; never null.
    cairo_font_face_t* face(const Font& font);

  private:
    cairo_font_face_t* load(const std::string& name);
    cairo_font_face_t* fallback();

    std::filesystem::path directory_;
    std::map<std::string, cairo_font_face_t*> faces_;
    cairo_font_face_t* fallback_ = nullptr;
};

}  // namespace vistrel
