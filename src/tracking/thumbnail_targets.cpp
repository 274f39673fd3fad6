#include "tracking/thumbnail_targets.h"

#include "platform/platform.h"
#include "tracking/window_by_number.h"

namespace vistrel {

namespace {

constexpr std::string_view titleAttribute = "AXTitle";

// Windows of regular applications only, as the ties take them: from macOS 27 the Dock no
// longer hosts Mission Control, yet its full-screen window stays over it and a hit-test may
// answer with it.
bool isRegular(Pid pid) {
    const auto application = platform().workspace.application(pid);
    return application && application->activationPolicy == ActivationPolicy::regular;
}

}  // namespace

MissionControlReading ThumbnailTargets::update(std::uint64_t generation, ThumbnailReader::Read read,
                                               Pid ownPid) {
    if (generation != generation_) {
        generation_ = generation;
        enumerated_ = false;
        ties_.clear();
    }
    MissionControlReading reading;
    reading.host = read.host;
    current_.clear();
    for (const MissionControlThumbnail& thumbnail : read.thumbnails) {
        const Tie& tie = tieOf(thumbnail, ownPid);
        current_.emplace_back(thumbnail.frame, static_cast<std::size_t>(&tie - ties_.data()));
        ++reading.thumbnails;
        if (tie.window) ++reading.mapped;
        if (tie.refused) ++reading.refusals;
    }
    // With no thumbnail read, the windows tell whether Mission Control had any to show: the
    // self-check must not take an empty desktop for a tree it cannot read.
    if (read.thumbnails.empty()) enumerateOnce(ownPid);
    if (enumerated_) reading.windows = static_cast<int>(catalog_.facts().size());
    return reading;
}

void ThumbnailTargets::enumerateOnce(Pid ownPid) {
    if (enumerated_) return;
    catalog_.enumerate(ownPid);
    enumerated_ = true;
}

// The tie made earlier in this opening for the same thumbnail (same title, identifier and
// number, same shape: its frame moves while Mission Control animates, and a window tied
// by its shape must still have it), else a new one.
const ThumbnailTargets::Tie& ThumbnailTargets::tieOf(const MissionControlThumbnail& thumbnail,
                                                     Pid ownPid) {
    for (const Tie& tie : ties_) {
        if (tie.thumbnailTitle == thumbnail.title && tie.identifier == thumbnail.identifier &&
            tie.number == thumbnail.window &&
            ThumbnailMatch::sameShape(tie.frame, thumbnail.frame) &&
            (!tie.windowFrame || ThumbnailMatch::sameShape(thumbnail.frame, *tie.windowFrame))) {
            return tie;
        }
    }
    ties_.push_back(make(thumbnail, ownPid));
    return ties_.back();
}

ThumbnailTargets::Tie ThumbnailTargets::make(const MissionControlThumbnail& thumbnail, Pid ownPid) {
    Tie tie;
    tie.thumbnailTitle = thumbnail.title;
    tie.identifier = thumbnail.identifier;
    tie.number = thumbnail.window;
    tie.frame = thumbnail.frame;
    if (thumbnail.window != 0) {
        tie.window = WindowByNumber::find(thumbnail.window, thumbnail.element);
        if (tie.window && tie.window->pid == ownPid) tie.window.reset();
        if (tie.window)
            tie.windowTitle = AX::string(tie.window->window, titleAttribute).value_or("");
        return tie;
    }
    enumerateOnce(ownPid);
    ThumbnailMatch::Thumbnail facts{thumbnail.title, std::nullopt, thumbnail.frame,
                                    thumbnail.display};
    if (thumbnail.identifier)
        facts.bundleIdentifier = ThumbnailMatch::bundleOfIdentifier(*thumbnail.identifier);
    const ThumbnailMatch::Fit fit = ThumbnailMatch::fit(facts, catalog_.facts());
    tie.refused = fit.refused;
    if (fit.window) {
        tie.window = catalog_.window(*fit.window);
        tie.windowTitle = catalog_.facts()[*fit.window].title;
        tie.windowFrame = catalog_.facts()[*fit.window].frame;
    }
    return tie;
}

std::optional<AX::WindowHit> ThumbnailTargets::at(Point point, std::uint64_t generation) const {
    if (generation != generation_) return std::nullopt;
    const std::pair<Rect, std::size_t>* winner = nullptr;
    for (const auto& entry : current_) {
        if (entry.first.contains(point) && (!winner || entry.first.area() < winner->first.area())) {
            winner = &entry;
        }
    }
    if (!winner) return std::nullopt;
    const Tie& tie = ties_[winner->second];
    if (!tie.window) return std::nullopt;
    if (!ThumbnailMatch::stillShows(tie.windowTitle,
                                    AX::string(tie.window->window, titleAttribute)))
        return std::nullopt;
    return tie.window;
}

std::optional<AX::WindowHit> ThumbnailTargets::hovered(Point point, std::uint64_t generation,
                                                       Pid ownPid, Pid hostPid) const {
    auto hit = AX::hitWindow(point);
    if (hit && hit->pid != ownPid && hit->pid != hostPid && isRegular(hit->pid)) return hit;
    return at(point, generation);
}

void ThumbnailTargets::windowsMoved() {
    enumerated_ = false;
    ties_.clear();
    current_.clear();
}

}  // namespace vistrel
