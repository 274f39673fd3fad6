#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_actions.h"
#include "layouts/saved_layout.h"
#include "settings/settings.h"

namespace vistrel {

// Puts the windows back where they were when the displays change to a set a layout was
// saved on: a display plugged in again, the lid opened, the Mac woken at the desk. Once the
// connected displays have stayed the same for two seconds and differ from the set last seen,
// the most recently saved layout for exactly that set is offered in the status panel or
// restored at once, as "layouts.followDisplays" says; the restore can be undone like any
// other. Main thread only.
class DisplayFollower {
  public:
    // Displays reconnect in stages after a plug or a wake; the set counts once it has held
    // this long.
    static constexpr double settleSeconds = 2;

    // A layout waiting for the user's click in the status panel.
    struct Offer {
        UUID id;
        std::string name;

        friend bool operator==(const Offer&, const Offer&) = default;
    };

    // One per installed platform.
    static DisplayFollower& shared();

    // Takes the displays connected now as the set last seen and watches for changes; says so
    // in the log when the system refuses the watch.
    void start();
    void stop();

    const std::optional<Offer>& offer() const { return offer_; }
    // Restores the offered layout, as a restore from the panel does, and calls `done` with
    // what the restore did; the offer is then gone.
    void acceptOffer(LayoutActions::RestoreDone done = {});
    // Called whenever an offer appears or goes.
    void setOnOfferChanged(std::function<void()> callback) {
        onOfferChanged_ = std::move(callback);
    }

  private:
    void changed();
    void settled();
    void follow(const SavedLayout& layout, FollowDisplaysMode mode);
    void setOffer(std::optional<Offer> offer);

    // Counts the notifications; a wait that finds another one came after it does nothing.
    // Work handed to the system holds it weakly, so none outlives the follower.
    std::shared_ptr<std::uint64_t> changes_ = std::make_shared<std::uint64_t>(0);
    std::vector<SavedLayout::Display> displays_;
    std::optional<Offer> offer_;
    std::function<void()> onOfferChanged_;
};

}  // namespace vistrel
