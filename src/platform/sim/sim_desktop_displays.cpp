#include <algorithm>

#include "platform/sim/sim_desktop.h"

// Displays coming and going, and the Mac sleeping and waking.

namespace vistrel {

namespace {

// The frame moved inside the area, keeping its offset from the area's corner where it can and
// shrinking it where it is larger.
Rect keptInside(Rect frame, Rect from, Rect area) {
    frame.width = std::min(frame.width, area.width);
    frame.height = std::min(frame.height, area.height);
    frame.x = std::clamp(area.x + (frame.x - from.x), area.x, area.maxX() - frame.width);
    frame.y = std::clamp(area.y + (frame.y - from.y), area.y, area.maxY() - frame.height);
    return frame;
}

}  // namespace

void SimDesktop::plugDisplay(std::uint32_t displayID, Size size) {
    addScreenToTheRight(size, displayID);
    if (displayBehavior.replugRestores) {
        for (const auto& [id, frame] : unpluggedFrames_[displayID]) {
            if (SimWindow* found = window(id); found != nullptr && !found->closed)
                found->frame = frame;
        }
    }
    unpluggedFrames_.erase(displayID);
    tellDisplaysChanged();
}

void SimDesktop::unplugDisplay(std::uint32_t displayID) {
    const std::vector<Rect> frames = accessibilityScreenFrames();
    for (std::size_t i = 1; i < screens_.size(); ++i) {
        if (screens_[i].displayID != displayID) continue;
        screens_.erase(screens_.begin() + static_cast<std::ptrdiff_t>(i));
        auto& held = unpluggedFrames_[displayID];
        for (const SimWindow& window : windows_) {
            if (frames[i].contains(window.frame.mid())) held.emplace_back(window.id, window.frame);
        }
        if (displayBehavior.unplugged == SimDisplayBehavior::Unplugged::gathered) {
            gatherWindowsFrom(frames[i]);
        }
        tellDisplaysChanged();
        return;
    }
}

void SimDesktop::closeLid() {
    if (lidClosed_) return;
    if (screens_.size() < 2) {
        suspend();
        return;
    }
    const std::vector<Rect> frames = accessibilityScreenFrames();
    lidClosed_ = screens_.front();
    screens_.erase(screens_.begin());
    closedAppKitOrigin_ = {screens_.front().frame.x, screens_.front().frame.y};
    closedAccessibilityOrigin_ = {frames[1].x, frames[1].y};
    shiftEverything({-closedAppKitOrigin_.x, -closedAppKitOrigin_.y},
                    {-closedAccessibilityOrigin_.x, -closedAccessibilityOrigin_.y});
    Rect builtIn = frames.front();
    builtIn.x -= closedAccessibilityOrigin_.x;
    builtIn.y -= closedAccessibilityOrigin_.y;
    gatherWindowsFrom(builtIn);
    tellDisplaysChanged();
}

void SimDesktop::openLid() {
    if (!lidClosed_) {
        if (suspended_) wake();
        return;
    }
    shiftEverything(closedAppKitOrigin_, closedAccessibilityOrigin_);
    screens_.insert(screens_.begin(), *lidClosed_);
    lidClosed_.reset();
    tellDisplaysChanged();
}

void SimDesktop::shiftEverything(Point appKit, Point accessibility) {
    for (ScreenDescription& screen : screens_) {
        screen.frame.x += appKit.x;
        screen.frame.y += appKit.y;
        screen.visibleFrame.x += appKit.x;
        screen.visibleFrame.y += appKit.y;
    }
    for (SimWindow& window : windows_) {
        window.frame.x += accessibility.x;
        window.frame.y += accessibility.y;
    }
}

void SimDesktop::suspend() {
    suspended_ = true;
}

void SimDesktop::wake() {
    suspended_ = false;
    displayWatch_.post();
    if (changedWhileSuspended_) tellDisplaysChanged();
    changedWhileSuspended_ = false;
}

void SimDesktop::tellDisplaysChanged() {
    if (suspended_) {
        changedWhileSuspended_ = true;
        return;
    }
    displayWatch_.post();
    if (!displayBehavior.toldInStages) return;
    executor_.main().after(secondStage, [this] {
        if (!suspended_) displayWatch_.post();
    });
}

void SimDesktop::gatherWindowsFrom(Rect frame) {
    const ScreenDescription& primary = screens_.front();
    // The primary display's visible area in accessibility coordinates: below the menu bar.
    const Rect area{primary.visibleFrame.x, simMenuBarHeight, primary.visibleFrame.width,
                    primary.visibleFrame.height};
    for (SimWindow& window : windows_) {
        if (frame.contains(window.frame.mid()))
            window.frame = keptInside(window.frame, frame, area);
    }
}

}  // namespace vistrel
