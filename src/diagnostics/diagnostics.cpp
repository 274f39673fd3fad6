#include "diagnostics/diagnostics.h"

#include <sstream>
#include <string_view>
#include <vector>

#include "layouts/layout_store.h"
#include "platform/platform.h"
#include "settings/settings.h"
#include "tracking/health.h"
#include "views/theme.h"

namespace vistrel {

namespace {

constexpr std::string_view listSeparator = ", ";
constexpr std::string_view noShortcutsOff = "none";

std::string_view yesNo(bool value) {
    return value ? "true" : "false";
}

std::string_view onOff(bool value) {
    return value ? "on" : "off";
}

// Points and scales as a person writes them: 25, 8.5, 1440.
std::string number(double value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string rect(const Rect& r) {
    std::ostringstream out;
    out << '(' << r.x << ", " << r.y << ", " << r.width << ", " << r.height << ')';
    return out.str();
}

std::string_view buttonName(OverlayButton button) {
    switch (button) {
        case OverlayButton::close:
            return "close";
        case OverlayButton::minimize:
            return "minimize";
        case OverlayButton::maximize:
            return "maximize";
    }
    return "close";
}

std::string joined(const std::vector<std::string_view>& names) {
    std::string text;
    for (std::string_view name : names) {
        if (!text.empty()) text += listSeparator;
        text += name;
    }
    return text;
}

std::string versionLine(Platform& p) {
    const BundleInfo bundle = p.workspace.mainBundle();
    return "Vistrel " + bundle.version + " (" + bundle.build + ")";
}

std::string systemLine(Platform& p) {
    SystemInfo& system = p.systemInfo;
    return "macOS " + system.operatingSystemVersionString() + ", " +
           system.hardwareModel().value_or(std::string(Diagnostics::unknown)) + ", " +
           std::to_string(system.processorCount()) + " cores";
}

std::string loginLine(Platform& p) {
    const LoginItemStatus status = p.loginItem.status();
    std::string line = "Start at login: " + std::string(yesNo(status == LoginItemStatus::enabled));
    if (status == LoginItemStatus::requiresApproval) line += " (needs approval)";
    return line;
}

std::string buttonsLine(Settings& settings) {
    std::vector<std::string_view> names;
    for (OverlayButton button : settings.enabledButtons())
        names.push_back(buttonName(button));
    const Theme theme =
        Theme::fromRaw(settings.buttonTheme().value_or("")).value_or(Theme::classic);
    return "Buttons: " + joined(names) + ", size " + number(settings.buttonSize()) + ", theme " +
           std::string(theme.rawValue()) + ", maximize " + settings.maximizeMode();
}

std::string layoutsLine(Settings& settings) {
    return "Layouts: " + std::string(onOff(settings.layoutsEnabled())) + ", shelf " +
           std::string(onOff(settings.layoutsShelf())) + ", gap " + number(settings.layoutsGap()) +
           ", saved " + std::to_string(LayoutStore::load(settings.store()).size());
}

std::string shortcutsLine(Settings& settings) {
    std::vector<std::string_view> off;
    for (Hotkey hotkey : allHotkeys) {
        if (settings.hotkeyDisabled(hotkey)) off.push_back(name(hotkey));
    }
    return "Shortcuts off: " + (off.empty() ? std::string(noShortcutsOff) : joined(off));
}

std::string displayLines(Platform& p) {
    std::string text = "Displays:";
    const std::vector<ScreenDescription> screens = p.screens.screens();
    const std::optional<std::size_t> main = p.screens.mainScreenIndex();
    for (std::size_t i = 0; i < screens.size(); ++i) {
        const ScreenDescription& screen = screens[i];
        text += "\n  " + screen.localizedName + " frame " + rect(screen.frame) + " visible " +
                rect(screen.visibleFrame) + " scale " + number(screen.backingScaleFactor);
        if (main == i) text += Diagnostics::mainScreenMark;
    }
    return text;
}

// What the agent found out about working on this Mac while it ran.
std::string healthLines() {
    const Health& health = Health::shared();
    const auto& last = health.selfCheck().last();
    return "Accessibility grant stale: " + std::string(yesNo(health.staleGrant())) +
           "\nMission Control self-check: " + (last ? last->summary() : "no opening yet") +
           ", failed openings in a row " + std::to_string(health.selfCheck().failuresInARow()) +
           "\nEvent tap switched off often: " + std::string(yesNo(health.tapUnsteady()));
}

}  // namespace

std::string Diagnostics::text() {
    Platform& p = platform();
    Settings& settings = Settings::shared();
    const std::vector<std::string> lines = {
        versionLine(p),
        systemLine(p),
        "Running from: " + p.workspace.mainBundle().path,
        "Accessibility trusted: " + std::string(yesNo(p.accessibility.isProcessTrusted())),
        loginLine(p),
        buttonsLine(settings),
        layoutsLine(settings),
        shortcutsLine(settings),
        "Displays have separate Spaces: " +
            std::string(yesNo(p.screens.screensHaveSeparateSpaces())),
        displayLines(p),
        healthLines(),
    };
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

}  // namespace vistrel
