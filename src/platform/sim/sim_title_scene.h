#pragma once

#include "platform/sim/sim_model.h"

namespace vistrel {

class SimDesktop;

// The windows whose thumbnails say least about them, added to whatever scene a desktop
// shows, each in an application of its own:
//   browserPage: Chrome's window, whose thumbnail carries the page's title ("Release
//     notes") while its accessibility title adds the browser's name and the profile
//     ("Release notes - Google Chrome - Work");
//   untitled: a Word document whose thumbnail has no title at all;
//   alikeFirst, alikeSecond: two TextEdit windows "Untitled" of one shape, which neither
//     title nor shape tells apart;
//   wide, tall: two Preview windows "Receipt.pdf" whose shapes tell them apart.
struct SimTitleScene {
    SimWindowId browserPage = 0;
    SimWindowId untitled = 0;
    SimWindowId alikeFirst = 0;
    SimWindowId alikeSecond = 0;
    SimWindowId wide = 0;
    SimWindowId tall = 0;
};

SimTitleScene addTitleScene(SimDesktop& desktop);

}  // namespace vistrel
