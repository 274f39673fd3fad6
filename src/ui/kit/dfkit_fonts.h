#pragma once

#include <array>
#include <string_view>

namespace vistrel {

// The kit's two bundled fonts: "GeistMono-Medium" for section labels and key caps,
// "InstrumentSans-SemiBold" for display text. They are registered for the process once,
// before the first panel is built; text in a font that could not be registered falls back
// to the system font of the same size.
class DFKitFonts {
  public:
    static constexpr std::array<std::string_view, 2> names = {"GeistMono-Medium",
                                                              "InstrumentSans-SemiBold"};
    static constexpr std::string_view extension = "ttf";

    // Registers the fonts the first time it is called in the process; later calls return at
    // once. Main thread.
    static void registerFonts();

    // Registers the fonts the first time it is called on this object (registerFonts() uses
    // the process's one object).
    void registerOnce();

  private:
    bool registered_ = false;
};

}  // namespace vistrel
