#pragma once

#include <array>
#include <string_view>

namespace vistrel {

class SimDesktop;

// The ways a Mac may present Mission Control to the accessibility interface, as far as
// public records of real trees show them (Hammerspoon issue 3897 and PaperWM.spoon issue
// 173 for WindowManager's tree on macOS 27, rebuilt in tests/captures/; Hammerspoon
// scripts that walk the Dock's "mc" → "mc.display" groups up to macOS 26). Where the records
// disagree or say nothing, every variant is modelled:
//   hitTestWindow: up to macOS 26, the hit-test over a thumbnail answers with the
//     application's window (its title element in the scaled title bar).
//   hitTestThumbnail: up to macOS 26, the hit-test answers with the Dock's thumbnail, an
//     AXButton with a title and a frame and no AXWindow.
//   numberedThumbnails: macOS 27, WindowManager's thumbnails carry their window's "wid".
//   unnumberedThumbnails: macOS 27, they carry only "<bundle id>.space.<n>", a title and a
//     frame.
enum class SimPresentation {
    hitTestWindow,
    hitTestThumbnail,
    numberedThumbnails,
    unnumberedThumbnails
};

inline constexpr std::array<SimPresentation, 4> everyPresentation{
    SimPresentation::hitTestWindow, SimPresentation::hitTestThumbnail,
    SimPresentation::numberedThumbnails, SimPresentation::unnumberedThumbnails};

// Makes the desktop's system and Dock present Mission Control that way.
void present(SimDesktop& desktop, SimPresentation presentation);

// A name for test names and printouts ("macOS26_hitTestWindow").
std::string_view name(SimPresentation presentation);

}  // namespace vistrel
