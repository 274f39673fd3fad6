#include <cairo.h>

#include <array>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "layouts/layout_store.h"
#include "platform/sim/cairo_canvas.h"
#include "platform/sim/cairo_fonts.h"
#include "platform/sim/sim_desktop.h"
#include "settings/command_channel.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings/shared.h"
#include "settings_app/settings_model.h"
#include "settings_app/settings_window_painter.h"
#include "sim_command.h"

namespace vistrel {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view folderName = "settings";
constexpr double pictureScale = 2;
// Room around the window for its shadow, in points.
constexpr double margin = 36;
constexpr double shadowReach = 18;
constexpr double windowRadius = 10;
const Color lightDesktop = *Color::fromHex("#8A9BB8");
const Color darkDesktop = *Color::fromHex("#27303F");

std::string_view appearanceName(Appearance appearance) {
    return appearance == Appearance::dark ? "dark" : "light";
}

std::string lowered(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// The window over a plain desktop with a soft shadow, at 2x.
bool writeWindow(const SettingsModel& model, Appearance appearance, const fs::path& path) {
    const SettingsWindowPainter painter(model, appearance);
    const Size size = painter.size();
    CairoSurface surface(static_cast<int>((size.width + 2 * margin) * pictureScale),
                         static_cast<int>((size.height + 2 * margin) * pictureScale));
    cairo_t* cr = cairo_create(surface.get());
    cairo_scale(cr, pictureScale, pictureScale);
    const Color desktop = appearance == Appearance::dark ? darkDesktop : lightDesktop;
    cairo_set_source_rgb(cr, desktop.red, desktop.green, desktop.blue);
    cairo_paint(cr);
    // Layers of faint dark, wider and lower as they go, stand in for the window's shadow.
    for (double reach = shadowReach; reach > 0; reach -= 2) {
        cairo_new_path(cr);
        const double r = windowRadius + reach;
        const double x = margin - reach;
        const double y = margin - reach + shadowReach / 3;
        const double w = size.width + 2 * reach;
        const double h = size.height + 2 * reach;
        cairo_arc(cr, x + r, y + r, r, M_PI, 1.5 * M_PI);
        cairo_arc(cr, x + w - r, y + r, r, 1.5 * M_PI, 2 * M_PI);
        cairo_arc(cr, x + w - r, y + h - r, r, 0, 0.5 * M_PI);
        cairo_arc(cr, x + r, y + h - r, r, 0.5 * M_PI, M_PI);
        cairo_close_path(cr);
        cairo_set_source_rgba(cr, 0, 0, 0, 0.035);
        cairo_fill(cr);
    }
    cairo_translate(cr, margin, margin);
    CairoFonts fonts;
    drawDisplayList(cr, *painter.paint(), size, fonts);
    cairo_destroy(cr);
    return surface.writePng(path);
}

SavedLayout::Window savedWindow(std::string_view app, std::string_view title,
                                std::optional<std::string> document = {}) {
    return {"com.example." + std::string(app),
            std::string(app),
            std::string(title),
            {0, 0, 0.5, 1},
            {},
            std::move(document)};
}

// A few layouts a user saved, so the Layouts page has a list to show; the last one's windows
// show documents and a Finder folder.
void saveSomeLayouts(DefaultsStore& store) {
    const std::array<SavedLayout, 3> saved = {{
        {UUID::random(),
         "Writing",
         {savedWindow("TextEdit", "Chapter 3.txt", "file:///Users/ada/Book/Chapter%203.txt"),
          savedWindow("Safari", "Thesaurus")}},
        {UUID::random(),
         "Safari · Mail · Notes",
         {savedWindow("Safari", "Start Page"), savedWindow("Mail", "Inbox"),
          savedWindow("Notes", "Groceries")}},
        {UUID::random(),
         "Code review",
         {savedWindow("Xcode", "Vistrel — layout_url.cpp",
                      "file:///Users/ada/Projects/Vistrel/src/layouts/layout_url.cpp"),
          savedWindow("Terminal", "ada — zsh — 80×24"),
          savedWindow("Finder", "Vistrel", "file:///Users/ada/Projects/Vistrel/"),
          savedWindow("Safari", "Pull request #26")}},
    }};
    for (const SavedLayout& layout : saved)
        LayoutStore::add(store, layout);
}

class SettingsSession {
  public:
    explicit SettingsSession(SimCommandContext& context)
        : context_(context), folder_(context.outputDirectory / folderName) {
        // The Settings app is a process of its own: it reaches the domain as a suite.
        desktop_.bundle.identifier = std::string(SettingsModel::bundleIdentifier);
        store_ = Shared::store();
        channel_.listen();
    }

    int run() {
        saveSomeLayouts(*store_);
        for (const Appearance appearance : {Appearance::light, Appearance::dark}) {
            if (!everyPage(appearance) || !welcomeGuide(appearance)) return 1;
        }
        return layoutFiles() ? 0 : 1;
    }

  private:
    bool picture(const SettingsModel& model, Appearance appearance, const std::string& name) {
        const fs::path path =
            folder_ / (name + "_" + std::string(appearanceName(appearance)) + ".png");
        if (!writeWindow(model, appearance, path)) {
            context_.out << "  could not write " << path.string() << "\n";
            return false;
        }
        context_.out << "  wrote " << path.string() << "\n";
        return true;
    }

    bool everyPage(Appearance appearance) {
        context_.out << "== Vistrel Settings, every page, " << appearanceName(appearance)
                     << " ==\n";
        desktop_.trusted = true;
        Settings::shared().publishStatus();
        SettingsModel model(store_, LaunchOptions::fromArguments({"Vistrel Settings"}));
        for (const Page& page : model.pages()) {
            model.selectPage(page.id);
            if (!picture(model, appearance, "page_" + lowered(page.title))) return false;
        }
        // The last saved layout chosen, its windows under the list and its URL copied.
        model.selectPage(PageId::layouts);
        model.selectLayout(model.layouts().back().id);
        model.copyLayoutURL();
        context_.out << "  " << model.layoutsMessage() << " The pasteboard holds "
                     << desktop_.pasteboard().text().value_or("nothing") << "\n";
        if (!picture(model, appearance, "page_layouts_chosen")) return false;
        context_.out << "\n";
        return true;
    }

    // The saved layouts exported to a file and a file that is not a layouts file imported:
    // the list stays as it was and the window says why.
    bool layoutFiles() {
        context_.out << "== saved layouts to and from files ==\n";
        SettingsModel model(store_, LaunchOptions::fromArguments({"Vistrel Settings"}));
        model.selectPage(PageId::layouts);
        model.exportLayouts((folder_ / SettingsModel::exportFileName).string());
        context_.out << "  " << model.layoutsMessage() << "\n";
        const fs::path notLayouts = folder_ / "notes.txt";
        std::ofstream(notLayouts) << "Remember: the shelf shows nine layouts.\n";
        model.importLayouts(notLayouts.string());
        context_.out << "  " << model.layoutsMessage() << "\n";
        if (!picture(model, Appearance::light, "page_layouts_import_refused")) return false;
        context_.out << "\n";
        return true;
    }

    // The first run: the guide opens with "--onboarding", the grant arrives while the
    // Accessibility step shows, the user turns on opening at login and finishes.
    bool welcomeGuide(Appearance appearance) {
        context_.out << "== the welcome guide, start to finish, " << appearanceName(appearance)
                     << " ==\n";
        store_->remove(std::string(PreferenceKey::onboardingCompleted));
        desktop_.loginItem().setStatus(LoginItemStatus::notRegistered);
        desktop_.trusted = false;
        Settings::shared().publishStatus();
        SettingsModel model(store_,
                            LaunchOptions::fromArguments({"Vistrel Settings", "--onboarding"}));
        model.setVisible(true);
        int step = 1;
        const auto shot = [&] {
            return picture(model, appearance, "welcome_" + std::to_string(step++));
        };
        if (!shot()) return false;
        model.goOn();
        if (!shot()) return false;
        model.press("welcome.requestAccessibility");
        desktop_.executor().runUntilIdle();
        context_.out << "  asked the agent for the Accessibility prompt (" << desktop_.trustPrompts
                     << " so far); the user allows it\n";
        desktop_.trusted = true;
        Settings::shared().publishStatus();
        desktop_.executor().advance(SettingsModel::statusRefreshInterval);
        context_.out << "  the guide moved on by itself to \"" << model.currentPage().title
                     << "\"\n";
        if (!shot()) return false;
        model.setOn("welcome.launchAtLogin", true);
        desktop_.executor().runUntilIdle();
        if (!shot()) return false;
        model.goOn();
        if (!shot()) return false;
        model.goOn();
        context_.out << "  finished: \"onboardingCompleted\" is "
                     << (store_->object(std::string(PreferenceKey::onboardingCompleted))
                                 .boolean()
                                 .value_or(false)
                             ? "true"
                             : "false")
                     << ", the settings show \"" << model.currentPage().title << "\"\n";
        if (!shot()) return false;
        context_.out << "\n";
        return true;
    }

    SimCommandContext& context_;
    fs::path folder_;
    SimDesktop desktop_;
    ScopedPlatform installed_{desktop_};
    std::shared_ptr<DefaultsStore> store_;
    // The agent's end of the channel, so the guide's commands are carried out.
    CommandChannel channel_{[] {}};
};

int playSettings(SimCommandContext& context) {
    return SettingsSession(context).run();
}

}  // namespace

VISTREL_SIM_COMMAND("settings",
                    "draws every page of Vistrel Settings, light and dark, and plays the welcome "
                    "guide",
                    80, playSettings);

}  // namespace vistrel
