#include "platform/sim/cairo_fonts.h"

#include <cairo-ft.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include "base/log.h"

namespace vistrel {

namespace {

constexpr std::string_view fontExtension = ".ttf";
constexpr const char* fallbackFamily = "sans-serif";

// One FreeType library for the process. Cairo keeps faces in caches of its own past the
// lifetime of any one CairoFonts, so the library that made them is never torn down.
FT_Library freeType() {
    static FT_Library library = [] {
        FT_Library made = nullptr;
        if (FT_Init_FreeType(&made) != 0) return FT_Library{nullptr};
        return made;
    }();
    return library;
}

// Frees the FreeType face when Cairo lets go of the font face made from it.
cairo_user_data_key_t faceKey;

void doneFace(void* face) {
    FT_Done_Face(static_cast<FT_Face>(face));
}

cairo_font_face_t* faceFromFile(const std::filesystem::path& file) {
    FT_Library library = freeType();
    FT_Face ftFace = nullptr;
    if (library == nullptr || FT_New_Face(library, file.c_str(), 0, &ftFace) != 0) return nullptr;
    cairo_font_face_t* face = cairo_ft_font_face_create_for_ft_face(ftFace, 0);
    if (cairo_font_face_set_user_data(face, &faceKey, ftFace, doneFace) != CAIRO_STATUS_SUCCESS) {
        cairo_font_face_destroy(face);
        FT_Done_Face(ftFace);
        return nullptr;
    }
    return face;
}

}  // namespace

CairoFonts::CairoFonts(std::filesystem::path directory) : directory_(std::move(directory)) {}

CairoFonts::~CairoFonts() {
    for (auto& [name, face] : faces_) {
        if (face != fallback_) cairo_font_face_destroy(face);
    }
    if (fallback_ != nullptr) cairo_font_face_destroy(fallback_);
}

std::filesystem::path CairoFonts::defaultDirectory() {
    return std::filesystem::path(VISTREL_RESOURCE_DIR) / "fonts";
}

cairo_font_face_t* CairoFonts::face(const Font& font) {
    const std::string name = font.name.empty() ? std::string(FontName::instrumentSans) : font.name;
    auto found = faces_.find(name);
    if (found == faces_.end()) found = faces_.emplace(name, load(name)).first;
    return found->second;
}

cairo_font_face_t* CairoFonts::load(const std::string& name) {
    const auto file = directory_ / (name + std::string(fontExtension));
    if (cairo_font_face_t* face = faceFromFile(file)) return face;
    Log::error("sim: font " + name + std::string(fontExtension) +
               " could not be loaded, drawing its text in the system font");
    return fallback();
}

// The system font stands in: the bundled display face from the repository's resources, or
// when even that is missing, Cairo's default sans-serif face.
cairo_font_face_t* CairoFonts::fallback() {
    if (fallback_ != nullptr) return fallback_;
    const auto systemFile =
        defaultDirectory() / (std::string(FontName::instrumentSans) + std::string(fontExtension));
    fallback_ = faceFromFile(systemFile);
    if (fallback_ == nullptr) {
        fallback_ = cairo_toy_font_face_create(fallbackFamily, CAIRO_FONT_SLANT_NORMAL,
                                               CAIRO_FONT_WEIGHT_NORMAL);
    }
    return fallback_;
}

}  // namespace vistrel
