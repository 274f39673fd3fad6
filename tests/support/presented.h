#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/sim/sim_dock.h"
#include "platform/sim/sim_presentation.h"
#include "tracking/mission_control_host.h"

namespace vistrel::testing {

// Names each instance of a suite run over the presentations after its presentation, so a
// failure says which Mac it happened on ("…/macOS27_unnumberedThumbnails").
struct PresentationName {
    std::string operator()(const ::testing::TestParamInfo<SimPresentation>& info) const {
        return std::string(name(info.param));
    }
};

// A scenario fixture told on one way a Mac presents Mission Control, the test's parameter:
// the desktop presents it that way from the moment the scene is built.
template <class Scenario>
class Presented : public Scenario, public ::testing::WithParamInterface<SimPresentation> {
  protected:
    template <class... Arguments>
    explicit Presented(Arguments&&... arguments) : Scenario(std::forward<Arguments>(arguments)...) {
        present(this->desktop, GetParam());
    }

    SimPresentation presentation() const { return GetParam(); }
    // Up to macOS 26 some Macs answer the hit-test over a thumbnail with the window itself.
    bool hitTestGivesTheWindow() const { return GetParam() == SimPresentation::hitTestWindow; }
    // From macOS 27 WindowManager draws Mission Control and its thumbnails name their
    // application; on some Macs also their window ("wid").
    bool hostedByWindowManager() const {
        return GetParam() == SimPresentation::numberedThumbnails ||
               GetParam() == SimPresentation::unnumberedThumbnails;
    }
    bool thumbnailsNameWindows() const { return GetParam() == SimPresentation::numberedThumbnails; }
    // The host Vistrel reads Mission Control from.
    MissionControlHost host() const {
        return hostedByWindowManager() ? MissionControlHost::windowManager
                                       : MissionControlHost::dock;
    }
    // The process whose tree holds Mission Control while it is open.
    Pid hostPid() {
        return hostedByWindowManager() ? this->desktop.dock().windowManagerPid()
                                       : this->desktop.dock().pid();
    }
    // The thumbnails Vistrel reads: one per window shown, and where thumbnails name no
    // window also those of other desktops' windows, which WindowManager lists over them.
    std::size_t thumbnailsRead() {
        const bool othersRead = hostedByWindowManager() && !thumbnailsNameWindows();
        return this->desktop.dock().thumbnails().size() +
               (othersRead ? this->desktop.dock().otherDesktop.size() : 0);
    }
};

}  // namespace vistrel::testing

// Runs every test of a suite made with Presented once on each presentation.
#define INSTANTIATE_ON_EVERY_PRESENTATION(Suite)                                \
    INSTANTIATE_TEST_SUITE_P(MissionControlPresentations, Suite,                \
                             ::testing::ValuesIn(::vistrel::everyPresentation), \
                             ::vistrel::testing::PresentationName{})
