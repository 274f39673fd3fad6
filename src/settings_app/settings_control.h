#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace vistrel {

// What a control is, which decides how a renderer builds it and which of the model's calls
// read and change it.
enum class ControlKind {
    toggle,       // a switch: SettingsModel::isOn / setOn
    choice,       // one of `options`: SettingsModel::choice / choose
    slider,       // a number in `range`: SettingsModel::number / setNumber
    button,       // a push button titled `buttonTitle`: SettingsModel::press
    status,       // live read-only state of the agent: SettingsModel::status
    text,         // fixed read-only text (`value`), such as the version
    link,         // opens `url` when pressed: SettingsModel::press
    picture,      // drawn by the model: SettingsModel::picture
    layoutList,   // the saved layouts: SettingsModel::layouts and the layout operations
    shortcutKeys  // a toggle whose row also shows `keys` ("⌥⌘W") as the status panel does
};

// How a choice is best shown.
enum class ChoiceStyle { popUp, segmented };

// What a picture control shows; drawn by the views' own code.
enum class PictureKind {
    welcome,        // the overlay's buttons over a window thumbnail
    themePreview,   // the chosen theme's buttons at the chosen size
    appIcon,        // the app's mark, for the welcome guide and the About page
    buttonsPreview  // the buttons the user turned on, over a thumbnail
};

struct ChoiceOption {
    std::string value{};  // what is stored
    std::string title{};  // what the user reads

    friend bool operator==(const ChoiceOption&, const ChoiceOption&) = default;
};

struct SliderRange {
    double minimum = 0;
    double maximum = 1;
    double step = 1;
    std::string unit{};  // shown after the value ("pt")

    friend bool operator==(const SliderRange&, const SliderRange&) = default;
};

// The live state a status control shows: its sentence and whether all is well (a green
// mark) or the user has something to do (an orange one).
struct StatusState {
    std::string text{};
    bool good = false;

    friend bool operator==(const StatusState&, const StatusState&) = default;
};

// One control of a section. Only the fields of its kind are meaningful; the model keeps
// what it is bound to (a preference key, a command) to itself.
struct Control {
    std::string id{};  // stable across runs, unique in the window ("buttons.theme")
    ControlKind kind = ControlKind::text;
    std::string label{};
    std::string help{};  // a footnote under the control; may be empty

    std::vector<ChoiceOption> options{};           // choice
    ChoiceStyle choiceStyle = ChoiceStyle::popUp;  // choice
    SliderRange range{};                           // slider
    std::string buttonTitle{};                     // button ("Open System Settings…")
    std::string value{};                           // text
    std::string url{};                             // link
    PictureKind picture = PictureKind::welcome;    // picture
    Size pictureSize{};                            // picture, in points
    std::string keys{};                            // shortcutKeys ("⌘W")
};

// A group of controls drawn as one rounded box, with an optional title above it and an
// optional footnote below it.
struct Section {
    std::string title{};
    std::string footnote{};
    std::vector<Control> controls{};
};

// The pages of the sidebar and the steps of the welcome guide.
enum class PageId {
    general,
    buttons,
    shortcuts,
    layouts,
    about,
    welcome,
    accessibility,
    login,
    ready
};

// One sidebar item (title and symbol) with its content, or one step of the welcome guide.
struct Page {
    PageId id = PageId::general;
    std::string title{};
    std::string symbol{};    // an SF Symbols name ("gearshape"); the simulator draws its own glyph
    std::string subtitle{};  // welcome steps: the sentence under the title
    std::vector<Section> sections{};
};

}  // namespace vistrel
