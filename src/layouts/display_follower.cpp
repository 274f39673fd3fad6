#include "layouts/display_follower.h"

#include "base/log.h"
#include "layouts/display_match.h"
#include "layouts/layout_actions.h"
#include "layouts/layout_store.h"
#include "platform/platform.h"
#include "settings/shared.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

std::vector<SavedLayout::Display> displaysNow() {
    return DisplayMatch::displaysOf(Screens::snapshot());
}

std::string quoted(const std::string& name) {
    return "\"" + name + "\"";
}

}  // namespace

DisplayFollower& DisplayFollower::shared() {
    return perPlatform<DisplayFollower>([] { return std::make_unique<DisplayFollower>(); });
}

void DisplayFollower::start() {
    displays_ = displaysNow();
    std::weak_ptr<std::uint64_t> alive = changes_;
    const auto changed = [this, alive] {
        if (alive.lock()) this->changed();
    };
    if (!platform().displayWatch.start(changed)) {
        Log::error(
            "layouts: the system refused to tell of display changes; layouts will not "
            "follow the displays");
    }
}

void DisplayFollower::stop() {
    platform().displayWatch.stop();
    ++*changes_;
}

// Every notification starts the wait again, so a burst counts once, when it is over.
void DisplayFollower::changed() {
    const std::uint64_t change = ++*changes_;
    std::weak_ptr<std::uint64_t> changes = changes_;
    platform().executor.main().after(settleSeconds, [this, changes, change] {
        const auto latest = changes.lock();
        if (latest && *latest == change) settled();
    });
}

void DisplayFollower::settled() {
    std::vector<SavedLayout::Display> now = displaysNow();
    // Back to the set last seen: a display that flickered, or a wake at the same desk.
    if (DisplayMatch::same(now, displays_)) return;
    displays_ = std::move(now);
    setOffer(std::nullopt);
    if (!Settings::shared().layoutsEnabled()) return;
    const std::vector<SavedLayout> layouts = LayoutStore::load(*Shared::store());
    const std::optional<std::size_t> found = DisplayMatch::latestFor(layouts, displays_);
    if (!found) {
        Log::info("layouts: the displays changed; no layout was saved on these displays");
        return;
    }
    follow(layouts[*found], Settings::shared().layoutsFollowDisplays());
}

void DisplayFollower::follow(const SavedLayout& layout, FollowDisplaysMode mode) {
    switch (mode) {
        case FollowDisplaysMode::off:
            Log::info("layouts: the displays changed to those of " + quoted(layout.name) +
                      "; following the displays is off");
            return;
        case FollowDisplaysMode::ask:
            Log::info("layouts: the displays changed; offering " + quoted(layout.name) +
                      " for these displays");
            setOffer(Offer{layout.id, layout.name});
            return;
        case FollowDisplaysMode::automatic:
            // Nothing is launched and nothing raised: the user is at work in another window.
            // The restore keeps its own lines to itself: all of it is one line, once done.
            LayoutActions::restore(layout, {.mayLaunch = false, .raises = false, .logs = false},
                                   [name = layout.name](const LayoutActions::Restored& restored) {
                                       Log::info("layouts: the displays changed; restored " +
                                                 quoted(name) + " for these displays, " +
                                                 restored.counts());
                                   });
            return;
    }
}

void DisplayFollower::acceptOffer(LayoutActions::RestoreDone done) {
    if (!offer_) return;
    const Offer offer = *offer_;
    setOffer(std::nullopt);
    for (const SavedLayout& layout : LayoutStore::load(*Shared::store())) {
        if (layout.id != offer.id) continue;
        Log::info("layouts: restoring " + quoted(layout.name) + " for these displays");
        LayoutActions::restore(layout, std::move(done));
        return;
    }
    Log::info("layouts: " + quoted(offer.name) + " was deleted before it could be restored");
}

void DisplayFollower::setOffer(std::optional<Offer> offer) {
    if (offer == offer_) return;
    offer_ = std::move(offer);
    if (onOfferChanged_) onOfferChanged_();
}

}  // namespace vistrel
