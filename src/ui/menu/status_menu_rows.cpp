#include <string>
#include <string_view>

#include "base/log.h"
#include "layouts/display_follower.h"
#include "layouts/layout_actions.h"
#include "layouts/layout_store.h"
#include "platform/platform.h"
#include "settings/accessibility_pane.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "tracking/health.h"
#include "ui/kit/dfkit_button.h"
#include "ui/kit/dfkit_icon_button.h"
#include "ui/kit/dfkit_key_row.h"
#include "ui/kit/dfkit_menu_row.h"
#include "ui/kit/dfkit_panel_header.h"
#include "ui/kit/dfkit_row.h"
#include "ui/kit/dfkit_scroll_view.h"
#include "ui/kit/dfkit_section_label.h"
#include "ui/kit/dfkit_separator.h"
#include "ui/menu/shortcut_text.h"
#include "ui/menu/status_menu_controller.h"

// The rows of the status panel, top to bottom.

namespace vistrel {

namespace {

constexpr double allowButtonHeight = 24;
// The button lines up with the status row's text and keeps clear of the separator.
constexpr DFKitMargins allowButtonMargins{DFKitRow::textX, 8};

template <typename View, typename... Arguments>
void append(DFKitViews& rows, Arguments&&... arguments) {
    rows.push_back(std::make_unique<View>(std::forward<Arguments>(arguments)...));
}

void appendAll(DFKitViews& rows, DFKitViews more) {
    for (auto& row : more)
        rows.push_back(std::move(row));
}

}  // namespace

DFKitViews StatusMenuController::rows() {
    DFKitViews rows;
    std::weak_ptr<StatusMenuController> weak = weak_from_this();
    auto more = std::make_unique<DFKitIconButton>(DFKitGlyph::dots, "More options", [weak] {
        if (auto self = weak.lock()) self->moreMenu();
    });
    moreButton_ = more.get();
    append<DFKitPanelHeader>(rows, app_, std::nullopt, std::move(more));
    appendAll(rows, offerRows());
    appendAll(rows, readinessRows());
    append<DFKitSeparator>(rows);
    append<DFKitSectionLabel>(rows, "Shortcuts in Mission Control");
    appendAll(rows, shortcutRows());
    if (Settings::shared().layoutsEnabled()) appendAll(rows, layoutRows());
    append<DFKitSeparator>(rows);
    appendAll(rows, bottomRows());
    return rows;
}

DFKitViews StatusMenuController::offerRows() {
    DFKitViews rows;
    const auto& offer = DisplayFollower::shared().offer();
    if (!offer) return rows;
    auto row = std::make_unique<DFKitMenuRow>(
        DFKitGlyph::display, "Restore \"" + offer->name + "\" for these displays", std::nullopt,
        rowAction([](StatusMenuController& self) {
            DisplayFollower::shared().acceptOffer(self.toldWhenRestored());
        }));
    // The user decides on it by its name: it is never cut short.
    row->setWraps(true);
    rows.push_back(std::move(row));
    append<DFKitSeparator>(rows);
    return rows;
}

DFKitViews StatusMenuController::readinessRows() {
    DFKitViews rows;
    switch (Health::shared().problem()) {
        case Health::Problem::none:
            append<DFKitRow>(rows, DFKitGlyph::wins, true, "Ready in Mission Control",
                             "Hover a window for its buttons. The shortcuts act on that window.");
            break;
        case Health::Problem::notTrusted:
            append<DFKitRow>(rows, DFKitGlyph::warning, false, "Allow Accessibility",
                             "Vistrel needs it to see which window you point at in Mission "
                             "Control.");
            appendButton(rows, "Open System Settings…", [](StatusMenuController&) {
                platform().accessibility.promptForTrust();
                AccessibilityPane::open();
            });
            break;
        case Health::Problem::staleGrant:
            append<DFKitRow>(rows, DFKitGlyph::warning, false,
                             "Accessibility needs to be granted again",
                             "macOS lists Vistrel as allowed but refuses it. Remove Vistrel from "
                             "the list with −, then add it again.");
            appendButton(rows, "Open System Settings…",
                         [](StatusMenuController&) { AccessibilityPane::open(); });
            break;
        case Health::Problem::cannotReadMissionControl:
            appendAll(rows, cannotReadRows());
            break;
        case Health::Problem::tapUnsteady:
            append<DFKitRow>(rows, DFKitGlyph::warning, false,
                             "macOS keeps pausing Vistrel's shortcuts",
                             "Keys and clicks in Mission Control may pass Vistrel by. Quitting "
                             "an app that stalls input usually helps.");
            break;
    }
    return rows;
}

DFKitViews StatusMenuController::cannotReadRows() {
    DFKitViews rows;
    if (Health::shared().captureWaiting()) {
        append<DFKitRow>(rows, DFKitGlyph::warning, false,
                         "Vistrel can't read Mission Control on this Mac",
                         "Open Mission Control now: the capture is taken as it opens.");
        return rows;
    }
    append<DFKitRow>(rows, DFKitGlyph::warning, false,
                     "Vistrel can't read Mission Control on this Mac",
                     "Your keys and clicks work as usual. A capture of how this Mac shows "
                     "Mission Control helps us fix it.");
    appendButton(rows, "Send a Capture…", [](StatusMenuController& self) {
        if (self.sendCapture) self.sendCapture();
    });
    return rows;
}

void StatusMenuController::appendButton(DFKitViews& rows, std::string title,
                                        std::function<void(StatusMenuController&)> body) {
    append<DFKitButton>(rows, std::move(title), DFKitButton::Variant::primary, allowButtonHeight,
                        rowAction(std::move(body)), allowButtonMargins);
}

DFKitViews StatusMenuController::shortcutRows() {
    DFKitViews rows;
    for (const Hotkey hotkey : allHotkeys) {
        const ShortcutText& text = ShortcutText::of(hotkey);
        const std::string title(text.title);
        auto toggle = std::make_unique<DFKitSwitch>(
            title, !Settings::shared().hotkeyDisabled(hotkey),
            [hotkey](bool on) { Shared::store()->set(Shared::Key::hotkeyDisabled(hotkey), !on); });
        append<DFKitKeyRow>(rows, std::string(text.keys), title, std::move(toggle));
    }
    return rows;
}

DFKitViews StatusMenuController::layoutRows() {
    DFKitViews rows;
    append<DFKitSeparator>(rows);
    append<DFKitSectionLabel>(rows, "Layouts");
    // The saved layouts scroll when the screen has no room for them all; the rest stays put.
    DFKitViews saved;
    const std::vector<SavedLayout> layouts = LayoutStore::load(*Shared::store());
    for (std::size_t i = 0; i < layouts.size() && i < maxLayoutRows; ++i) {
        const SavedLayout& layout = layouts[i];
        append<DFKitMenuRow>(
            saved, DFKitGlyph::apps, layout.name, std::nullopt,
            rowAction([layout](StatusMenuController& self) {
                Log::info("layouts: restoring \"" + layout.name + "\" from the menu");
                LayoutActions::restore(layout, self.toldWhenRestored());
            }));
    }
    if (!saved.empty()) append<DFKitScrollView>(rows, std::move(saved));
    append<DFKitMenuRow>(rows, DFKitGlyph::plus, "Save Current Layout", std::nullopt,
                         rowAction([](StatusMenuController&) {
                             LayoutActions::captureCurrent([](std::optional<SavedLayout> layout) {
                                 if (!layout) return;
                                 LayoutStore::add(*Shared::store(), *layout);
                                 Log::info("layouts: saved the current windows as \"" +
                                           layout->name + "\" from the menu");
                             });
                         }));
    if (LayoutUndo::shared().available()) {
        append<DFKitMenuRow>(rows, DFKitGlyph::undo, "Undo Layout", std::nullopt,
                             rowAction([](StatusMenuController&) { LayoutActions::undo({}); }));
    }
    return rows;
}

DFKitViews StatusMenuController::bottomRows() {
    DFKitViews rows;
    const auto call = [this](std::function<void()> StatusMenuController::*member) {
        return rowAction([member](StatusMenuController& self) {
            if (self.*member) (self.*member)();
        });
    };
    append<DFKitMenuRow>(rows, DFKitGlyph::gear, "Settings", "⌘,",
                         call(&StatusMenuController::openSettings));
    append<DFKitMenuRow>(rows, DFKitGlyph::spark, "Welcome Guide…", std::nullopt,
                         call(&StatusMenuController::openWelcome));
    append<DFKitMenuRow>(rows, DFKitGlyph::info, "About Vistrel", std::nullopt,
                         call(&StatusMenuController::openAbout));
    if (updater) {
        append<DFKitMenuRow>(rows, DFKitGlyph::download, "Check for Updates…", std::nullopt,
                             rowAction([](StatusMenuController& self) {
                                 if (!self.updater) return;
                                 platform().application.activate();
                                 self.updater->checkForUpdates();
                             }));
    }
    if (reportProblem) {
        append<DFKitMenuRow>(rows, DFKitGlyph::flag, "Report a Problem…", std::nullopt,
                             call(&StatusMenuController::reportProblem));
    }
    append<DFKitMenuRow>(
        rows, DFKitGlyph::power, "Quit Vistrel", "⌘Q",
        rowAction([](StatusMenuController&) { platform().application.terminate(); }));
    return rows;
}

}  // namespace vistrel
