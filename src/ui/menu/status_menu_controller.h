#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "layouts/layout_actions.h"
#include "platform/event_monitors.h"
#include "platform/native_menu.h"
#include "platform/status_bar.h"
#include "ui/kit/dfkit_fonts.h"
#include "ui/kit/dfkit_mark.h"
#include "ui/kit/dfkit_status_panel.h"
#include "views/hud_controller.h"

namespace vistrel {

class DFKitIconButton;

// The agent's status item and its panel: whether the agent is ready, a switch for each
// window shortcut, the saved layouts, and the ways to settings, the welcome guide, About,
// updates, problem reports and quitting; the "More options" menu in the header. Builds the
// rows afresh at each opening and routes every action. Made once, lives for the whole run;
// main thread only.
class StatusMenuController : public std::enable_shared_from_this<StatusMenuController> {
  public:
    // What the menu needs of the updater, when there is one.
    struct Updater {
        std::function<void()> checkForUpdates;  // a check the user sees
        std::function<bool()> automaticallyDownloads;
        std::function<void(bool)> setAutomaticallyDownloads;
    };

    // A click this soon after the panel closed (the click that closed it) leaves it closed.
    static constexpr double reopenGuard = 0.25;
    static constexpr std::size_t maxLayoutRows = 9;
    static constexpr double markSize = 16;
    // How long a message after a restore from the panel stays on the screen.
    static constexpr double toastSeconds = 2;

    // Creates the status item: the mark as a template image, the label "Vistrel", the click
    // action, and the visibility the preferences ask for. The kit's fonts are registered
    // before the first panel is built, through `fonts` or else the process's registration.
    static std::shared_ptr<StatusMenuController> make(DFKitFonts* fonts = nullptr);

    std::function<void()> openSettings;
    std::function<void()> openWelcome;
    std::function<void()> openAbout;
    // Absent until the update and problem-report features are present: their rows and the
    // "Install Updates Automatically" item are then left out.
    std::optional<Updater> updater;
    std::function<void()> reportProblem;
    // Takes a capture of Mission Control for a problem report, when it cannot be read.
    std::function<void()> sendCapture;

    // The status button's action: opens the panel, or closes it when it is open.
    void clicked();
    // The panel's rows, top to bottom, as they are now.
    DFKitViews rows();
    // The items of the "More options" menu, as they are now.
    std::vector<NativeMenuItem> moreMenuItems();
    // Shows or hides the item as "menuBarIconHidden" asks.
    void applyVisibility();
    // Draws the mark, with a dot while a layout for the displays waits to be restored.
    void applyMark();

    StatusItem* item() const { return item_.get(); }
    DFKitStatusPanel* panel() const { return panel_.get(); }
    const DFKitApp& app() const { return app_; }
    // The message a restore from the panel leaves on the screen.
    const HUDController& toast() const { return toast_; }

  private:
    StatusMenuController() = default;
    void init();
    void makePanel();
    void willOpen();
    void moreMenu();
    bool keyDown(const KeyPress& press);
    // Whether Vistrel is ready, or the most pressing reason it is not and what to do.
    // The layout offered for the displays connected now, when one is.
    DFKitViews offerRows();
    DFKitViews readinessRows();
    DFKitViews cannotReadRows();
    // A button under a readiness row, lined up with its text.
    void appendButton(DFKitViews& rows, std::string title,
                      std::function<void(StatusMenuController&)> body);
    DFKitViews shortcutRows();
    DFKitViews layoutRows();
    DFKitViews bottomRows();
    // A row's action: closes the panel, then acts, if the controller still exists.
    std::function<void()> rowAction(std::function<void(StatusMenuController&)> body);
    // The completion of a restore from the panel: tells the user in a message on the main
    // screen what went wrong, if anything did, as a restore in Mission Control does.
    LayoutActions::RestoreDone toldWhenRestored();

    std::unique_ptr<StatusItem> item_;
    DFKitApp app_{"Vistrel", DFKitMark::vistrel};
    std::unique_ptr<DFKitStatusPanel> panel_;
    std::uint64_t keyMonitor_ = 0;
    DFKitFonts* fonts_ = nullptr;
    // The header's "More options" button of the rows shown, where its menu opens.
    DFKitIconButton* moreButton_ = nullptr;
    HUDController toast_;
};

}  // namespace vistrel
