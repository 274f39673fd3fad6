#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ax_element.h"
#include "platform/geometry.h"
#include "platform/sim/sim_accessibility.h"
#include "platform/sim/sim_model.h"

namespace vistrel {

class SimDesktop;

// One window thumbnail of Mission Control: the window it shows and where it is drawn.
struct SimThumbnail {
    SimWindowId window = 0;
    Rect frame;  // accessibility coordinates

    friend bool operator==(const SimThumbnail&, const SimThumbnail&) = default;
};

// A window on another desktop. From macOS 27 WindowManager lists its thumbnail too, over
// the current desktop's, though the on-screen window list does not show the window.
struct SimOtherDesktopWindow {
    std::uint32_t number = 0;  // its window server number ("wid")
    std::string bundleIdentifier;
    std::string title;
};

// The Dock process and its Mission Control, as the agent sees them, in the two generations
// of macOS (chosen, when Mission Control opens, by the version the desktop's system really
// runs, which may be newer than the one it tells).
// A running application "com.apple.dock" with its bar, a window on layer 20. Up to macOS 26,
// while Mission Control is open: one window per screen on layer 18 and the tree
//   Dock → "mc" → "mc.display" (one per screen) → "mc.spaces", "mc.windows" → thumbnails.
// From macOS 27: no layer-18 window, but a full-screen Dock window on layer 20 that stays
// once Mission Control has opened; the Dock keeps an empty "mc" group while it is open,
// and the tree lives in WindowManager ("com.apple.WindowManager"):
//   WindowManager → "mc.display" (one per screen) → "mc.spaces", thumbnails
// each thumbnail a button identified "<bundle id>.space.<n>" with its window's number in
// "wid", followed by the thumbnails of other desktops' windows, overlapping.
// One thumbnail per visible window, laid out in rows like Mission Control does.
// Mission Control answers hit-tests over it (SimAccessibility::hitTestOverride) and keeps
// its tree in step with the desktop whenever the Dock's or WindowManager's application
// element is read (SimAccessibility::onApplicationRead). An empty desktop has no Dock
// until launch().
class SimDock {
  public:
    static constexpr std::string_view bundleIdentifier = "com.apple.dock";
    static constexpr std::string_view name = "Dock";
    static constexpr std::int64_t barLayer = 20;
    static constexpr std::int64_t missionControlLayer = 18;
    static constexpr std::string_view windowManagerBundleIdentifier = "com.apple.WindowManager";
    static constexpr std::string_view windowManagerName = "WindowManager";
    // The first major version of macOS whose Mission Control lives in WindowManager.
    static constexpr int firstWindowManagerMajor = 27;
    // How far other desktops' thumbnails are shifted over the visible ones.
    static constexpr double otherDesktopOffset = 24;
    // The key that leaves Mission Control when posted.
    static constexpr std::uint16_t escapeKeyCode = 53;

    // How thumbnails are laid out on a screen, in points.
    static constexpr double spacesBarHeight = 90;
    static constexpr double sideMargin = 48;
    static constexpr double bottomMargin = 24;  // above the Dock, which stays visible

    explicit SimDock(SimDesktop& desktop);
    SimDock(const SimDock&) = delete;
    SimDock& operator=(const SimDock&) = delete;

    // Starts the Dock process (nothing happens while it runs); answers its identifier.
    Pid launch();
    // Ends the Dock process; Mission Control goes with it.
    void quit();
    // Quits and launches again under a new process identifier, as after `killall Dock`.
    Pid restart();
    bool isRunning() const { return pid_ != 0; }
    // The running Dock's process identifier; 0 when it does not run.
    Pid pid() const { return pid_; }
    // WindowManager's process identifier; 0 until Mission Control first opened on macOS 27.
    Pid windowManagerPid() const { return windowManagerPid_; }
    // Whether the desktop's system keeps Mission Control in WindowManager.
    bool hostedByWindowManager() const;

    // Windows of other desktops, listed by WindowManager from macOS 27 on.
    std::vector<SimOtherDesktopWindow> otherDesktop;
    // How this Mac presents Mission Control (see SimPresentation): whether the hit-test
    // over a thumbnail answers with the thumbnail's own button instead of the window, and
    // whether WindowManager's thumbnails carry their window's number ("wid").
    bool hitTestAnswersThumbnail = false;
    bool thumbnailsNameWindows = true;
    // A macOS that moved Mission Control again: the Dock still shows its "mc" group while it
    // is open, but no display or thumbnail under it nor anywhere the agent looks.
    bool treeEmpty = false;

    // Opens Mission Control on every screen, launching the Dock first if need be.
    void open();
    // Opens App Exposé instead: the same windows, under an "appexpose" group of the Dock.
    void openAppExpose();
    void close();
    bool isOpen() const { return open_; }
    bool isAppExpose() const { return open_ && appExpose_; }

    // The thumbnails shown, in tree order, up to date with the desktop; empty when closed.
    const std::vector<SimThumbnail>& thumbnails();
    std::optional<SimThumbnail> thumbnailAt(Point point);

    // What a posted key does: Escape leaves Mission Control.
    void keyPosted(std::uint16_t keyCode, bool down);
    // What a click that reached Mission Control does: on a thumbnail it brings that window
    // to the front and leaves; on empty space it just leaves.
    void clicked(Point point);

    // The part of a screen (accessibility coordinates) that thumbnails may use.
    static Rect thumbnailArea(Rect screen);

  private:
    struct Shown {
        SimWindowId window;
        Rect frame;
        std::size_t screen;
        friend bool operator==(const Shown&, const Shown&) = default;
    };

    std::vector<Shown> visibleWindows() const;
    void sync();
    void rebuild(const std::vector<Shown>& shown);
    void removeTree();
    SimNodeId makeDisplay(std::size_t screen, Rect frame, const std::vector<Shown>& shown);
    std::vector<AXElement> otherDesktopThumbnails(const std::vector<Rect>& visible);
    AXElement thumbnailNode(std::map<std::string, AXValue> attributes);
    void setHostChildren(std::vector<AXElement> missionControl);
    Pid hostPid() const;
    void launchWindowManager();
    void publishWindows();
    std::optional<AXElement> hitTest(Point point);
    AXElement windowPartAt(const SimThumbnail& thumbnail, Point point);

    SimDesktop& desktop_;
    Pid pid_ = 0;
    Pid publishedPid_ = 0;
    Pid windowManagerPid_ = 0;
    bool open_ = false;
    bool appExpose_ = false;
    // macOS 27's full-screen Dock window, there from the first opening on.
    bool fullScreenWindowShown_ = false;
    SimNodeId barNode_ = 0;
    SimNodeId missionControlNode_ = 0;
    std::vector<SimNodeId> treeNodes_;
    std::vector<SimNodeId> displayNodes_;
    std::vector<std::pair<SimWindowId, SimNodeId>> thumbnailNodes_;
    std::vector<Shown> laidOutFrom_;
    std::vector<Rect> laidOutScreens_;
    std::vector<SimThumbnail> thumbnails_;
};

}  // namespace vistrel
