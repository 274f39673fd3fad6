#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "layouts/uuid.h"
#include "platform/appearance.h"
#include "platform/defaults.h"
#include "platform/display_list.h"
#include "platform/executor.h"
#include "settings_app/control_binding.h"
#include "settings_app/launch_options.h"
#include "settings_app/layout_window_row.h"
#include "settings_app/settings_control.h"

namespace vistrel {

// One saved layout as the list shows it.
struct LayoutRow {
    UUID id;
    std::string name;
    std::string detail;  // "3 windows"

    friend bool operator==(const LayoutRow&, const LayoutRow&) = default;
};

// The Settings app's whole content and state, independent of how it is drawn: the sidebar
// pages and the welcome guide's steps (sections of controls), which of them shows, and every
// control's value, read from the shared store at each call so that what the agent or the
// status menu changed shows at once. Changes are written with the key's type; commands go to
// the agent through the command notification. A renderer builds its controls from pages()
// and welcomeSteps(), reads values with the calls below, hands the user's changes back, and
// redraws what it shows whenever an observer is told something changed. Main thread only.
class SettingsModel {
  public:
    enum class Mode { settings, welcome };
    using Observer = std::function<void()>;

    // The app's name, the title of its window.
    static constexpr std::string_view appName = "Vistrel Settings";
    // The Settings app's own bundle identifier. It is not the domain's, so the app reaches
    // the shared domain as a suite.
    static constexpr std::string_view bundleIdentifier = "com.quillmarsh.vistrel.settings";
    // How often the keys a visible page shows are read again, so that what the agent (its
    // status keys) or the status panel changed shows without the user doing anything.
    static constexpr double statusRefreshInterval = 1.0;

    // `store` is the shared domain (Shared::store() in the app).
    SettingsModel(std::shared_ptr<DefaultsStore> store, LaunchOptions launch);
    ~SettingsModel();
    SettingsModel(const SettingsModel&) = delete;
    SettingsModel& operator=(const SettingsModel&) = delete;

    // --- Content -------------------------------------------------------------------------
    const std::vector<Page>& pages() const { return pages_; }
    const std::vector<Page>& welcomeSteps() const { return welcomeSteps_; }
    // The control with the id, on any page or step; nothing for an unknown id.
    const Control* control(std::string_view id) const;

    // --- What shows ----------------------------------------------------------------------
    Mode mode() const { return mode_; }
    // The sidebar's selection (also kept while the welcome guide shows).
    PageId selectedPage() const { return selectedPage_; }
    // The index of the welcome step showing.
    std::size_t welcomeStep() const { return welcomeStep_; }
    // Whether the guide is shown again to someone who finished it before.
    bool replay() const { return replay_; }
    // The page or welcome step showing now.
    const Page& currentPage() const;
    // Selects a sidebar page and leaves the welcome guide.
    void selectPage(PageId page);
    // Starts the welcome guide at its first step.
    void showWelcome();
    // The guide's buttons: Back is offered after the first step; Continue moves on, and on
    // the last step finishes: "onboardingCompleted" is set and the settings show.
    bool canGoBack() const;
    std::string continueTitle() const;
    void goBack();
    void goOn();

    // The window became visible or went away: the keys of the page showing are re-read
    // every statusRefreshInterval seconds only while it is visible.
    void setVisible(bool visible);

    // --- Values --------------------------------------------------------------------------
    // Toggles (and shortcut toggles): the switch's position.
    bool isOn(std::string_view id) const;
    void setOn(std::string_view id, bool on);
    // Choices: the value of the chosen option (the default for an unset or unknown value).
    std::string choice(std::string_view id) const;
    void choose(std::string_view id, const std::string& value);
    // Sliders: the value, clamped to the range.
    double number(std::string_view id) const;
    void setNumber(std::string_view id, double value);
    // Status controls.
    StatusState status(std::string_view id) const;
    // Whether the control can be used now (the Layouts options only while Layouts is on).
    bool isEnabled(std::string_view id) const;
    // Buttons and links: posts the command, opens the link or runs the action.
    void press(std::string_view id);
    // Picture controls: drawn in the appearance, flipped (origin top-left), pictureSize big.
    std::shared_ptr<const DisplayList> picture(std::string_view id, Appearance appearance) const;

    // --- Saved layouts -------------------------------------------------------------------
    std::vector<LayoutRow> layouts() const;
    // Chooses the layout whose windows show under the list (nothing chooses none).
    void selectLayout(std::optional<UUID> id);
    // The chosen layout while it is still saved.
    std::optional<UUID> selectedLayout() const;
    // The chosen layout's windows in saved order; empty when none is chosen.
    std::vector<LayoutWindowRow> selectedLayoutWindows() const;
    // Puts the URL that restores the chosen layout on the pasteboard; false with a message
    // when none is chosen, its name is too long for a URL or the pasteboard refused it.
    bool copyLayoutURL();
    // Renames the layout; an empty (or all-space) name is refused with a message.
    bool renameLayout(const UUID& id, const std::string& name);
    void deleteLayout(const UUID& id);
    // Moves the layout at `from` to the position `to` (both indexes in layouts()).
    void moveLayout(std::size_t from, std::size_t to);
    // Writes every saved layout to the file, in the stored format; false with a message when
    // the file could not be written.
    bool exportLayouts(const std::string& path);
    // Adds the file's layouts after the saved ones (a layout already saved, by id, is
    // replaced). A file that cannot be read or parsed changes nothing; false with a message.
    bool importLayouts(const std::string& path);
    // The last layout operation's message for the user ("Imported 2 layouts.", or why it
    // failed); empty until there is one.
    const std::string& layoutsMessage() const { return layoutsMessage_; }
    // Whether that message says an edit failed (drawn with a warning mark).
    bool layoutsMessageIsWarning() const { return layoutsMessageIsWarning_; }
    // The file name the export proposes.
    static constexpr std::string_view exportFileName = "Vistrel Layouts.json";

    // --- Change notification -------------------------------------------------------------
    // The observer runs after every change of what shows or of a value the model saw
    // change (a write through the model, a key of the visible page changed elsewhere).
    // Answers a token.
    std::uint64_t observe(Observer observer);
    void stopObserving(std::uint64_t token);

  private:
    const ControlBinding* binding(std::string_view id) const;
    bool onLastStep() const;
    double clamped(const Control& slider, double value) const;
    // What shows changed: the status refresh follows the page, observers redraw.
    void shown();
    // Keeps a layout edit's message and tells observers; answers `ok`.
    bool edited(bool ok, std::string message);
    void changed();
    void scheduleRefresh();
    void refresh();
    // The keys the page showing now reads, and their values.
    std::set<std::string> watchedKeys() const;
    std::map<std::string, DefaultsValue> snapshot() const;

    std::shared_ptr<DefaultsStore> store_;
    std::vector<Page> pages_;
    std::vector<Page> welcomeSteps_;
    std::map<std::string, ControlBinding, std::less<>> bindings_;
    Mode mode_ = Mode::settings;
    PageId selectedPage_ = PageId::general;
    std::size_t welcomeStep_ = 0;
    bool replay_ = false;
    bool visible_ = false;
    std::optional<UUID> selectedLayout_;
    std::string layoutsMessage_;
    bool layoutsMessageIsWarning_ = false;
    std::map<std::string, DefaultsValue> lastSeen_;
    std::unique_ptr<Timer> refreshTimer_;
    std::map<std::uint64_t, Observer> observers_;
    std::uint64_t nextToken_ = 1;
    // The refresh timer holds this weakly instead of the model.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace vistrel
