#include "settings_app/layout_list_editor.h"

#include <algorithm>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "base/log.h"
#include "layouts/layout_store.h"
#include "layouts/layout_url.h"
#include "layouts/saved_layout_json.h"
#include "platform/platform.h"
#include "settings_app/settings_model.h"

namespace vistrel {

namespace {

std::string counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string fileName(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

// Why a text is not a list of layouts, in words for the user.
std::string whyUnreadable(const std::string& text) {
    if (!nlohmann::json::accept(text)) return "it is not JSON text";
    return "it does not hold a list of Vistrel layouts";
}

// Logs the failure in the log's words and answers the user's.
LayoutListEditor::Outcome failure(std::string_view logLine, std::string message) {
    Log::info("settings: " + std::string(logLine));
    return {false, std::move(message)};
}

// The saved layout with the id; nothing when it is no longer saved.
std::optional<SavedLayout> saved(DefaultsStore& store, const UUID& id) {
    auto layouts = LayoutStore::load(store);
    const auto found = std::ranges::find(layouts, id, &SavedLayout::id);
    if (found == layouts.end()) return std::nullopt;
    return std::move(*found);
}

}  // namespace

std::vector<LayoutRow> LayoutListEditor::rows() const {
    std::vector<LayoutRow> rows;
    for (const SavedLayout& layout : LayoutStore::load(store_)) {
        rows.push_back(
            {layout.id, layout.name, counted(layout.windows.size(), "window", "windows")});
    }
    return rows;
}

std::optional<std::vector<LayoutWindowRow>> LayoutListEditor::windows(const UUID& id) const {
    const auto layout = saved(store_, id);
    if (!layout) return std::nullopt;
    std::vector<LayoutWindowRow> rows;
    for (const SavedLayout::Window& window : layout->windows)
        rows.push_back(LayoutWindowRow::of(window));
    return rows;
}

LayoutListEditor::Outcome LayoutListEditor::copyURL(const UUID& id) {
    const auto layout = saved(store_, id);
    if (!layout) return {false, "That layout is no longer saved."};
    const std::string url = LayoutURL::applyURL(layout->name);
    if (url.size() > LayoutURL::maxLength) {
        return failure("layout url not copied: name too long",
                       "This layout’s name is too long for a URL. Rename it to copy its URL.");
    }
    // The URL is read back as the agent will read it: one it would refuse is not copied.
    const LayoutURL::Parsed parsed = LayoutURL::parse(url);
    if (!parsed.url) {
        return failure("layout url not copied: " + parsed.refusal,
                       "Could not copy the URL: " + parsed.refusal + ".");
    }
    if (!platform().pasteboard.copyText(url)) {
        return failure("layout url not copied: the pasteboard refused it",
                       "Could not copy the URL: the pasteboard did not take it. Try again.");
    }
    return {true, "Copied the URL that restores “" + layout->name + "”."};
}

LayoutListEditor::Outcome LayoutListEditor::rename(const UUID& id, const std::string& name) {
    const std::string wanted = trimmed(name);
    if (wanted.empty()) return {false, "A layout needs a name."};
    auto layouts = LayoutStore::load(store_);
    const auto found = std::find_if(layouts.begin(), layouts.end(),
                                    [&](const SavedLayout& layout) { return layout.id == id; });
    if (found == layouts.end()) return {false, "That layout is no longer saved."};
    found->name = wanted;
    LayoutStore::replace(store_, std::move(layouts));
    return {};
}

LayoutListEditor::Outcome LayoutListEditor::remove(const UUID& id) {
    LayoutStore::remove(store_, id);
    return {};
}

LayoutListEditor::Outcome LayoutListEditor::move(std::size_t from, std::size_t to) {
    auto layouts = LayoutStore::load(store_);
    if (from >= layouts.size() || to >= layouts.size() || from == to) return {};
    // Taken out and put back in: everything between shifts by one place.
    SavedLayout moving = std::move(layouts[from]);
    layouts.erase(layouts.begin() + static_cast<std::ptrdiff_t>(from));
    layouts.insert(layouts.begin() + static_cast<std::ptrdiff_t>(to), std::move(moving));
    LayoutStore::replace(store_, std::move(layouts));
    return {};
}

LayoutListEditor::Outcome LayoutListEditor::exportTo(const std::string& path) {
    const auto layouts = LayoutStore::load(store_);
    const auto text = SavedLayoutJSON::encode(layouts);
    if (!text)
        return failure("layouts export failed: not encodable",
                       "The layouts could not be written as text.");
    if (const FileError error = platform().files.writeAtomically(path, *text)) {
        return failure("layouts export failed: " + *error,
                       "Could not export to “" + fileName(path) + "”: " + *error + ".");
    }
    return {true, "Exported " + counted(layouts.size(), "layout", "layouts") + " to “" +
                      fileName(path) + "”."};
}

LayoutListEditor::Outcome LayoutListEditor::importFrom(const std::string& path) {
    const auto text = platform().files.read(path);
    if (!text) {
        return failure("layouts import failed: unreadable file",
                       "Could not read “" + fileName(path) + "”. Nothing was changed.");
    }
    const double now = SavedLayout::dateSinceReference(platform().clock.now());
    const auto imported = SavedLayoutJSON::decode(*text, now);
    if (!imported) {
        const std::string why = whyUnreadable(*text);
        return failure("layouts import failed: " + why, "Could not import “" + fileName(path) +
                                                            "”: " + why + ". Nothing was changed.");
    }
    if (imported->empty()) return {false, "“" + fileName(path) + "” holds no layouts."};
    auto layouts = LayoutStore::load(store_);
    for (const SavedLayout& layout : *imported) {
        // A layout saved before, by id, is brought up to date in its place.
        const auto same =
            std::find_if(layouts.begin(), layouts.end(),
                         [&](const SavedLayout& saved) { return saved.id == layout.id; });
        if (same != layouts.end()) {
            *same = layout;
        } else {
            layouts.push_back(layout);
        }
    }
    LayoutStore::replace(store_, std::move(layouts));
    return {true, "Imported " + counted(imported->size(), "layout", "layouts") + "."};
}

}  // namespace vistrel
