#include "layouts/layout_requests.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/log.h"
#include "layouts/layout_actions.h"
#include "layouts/layout_store.h"
#include "platform/platform.h"
#include "settings/shared.h"

namespace vistrel {

namespace {

constexpr std::uint8_t firstPrintable = 0x20;
constexpr std::uint8_t deleteCharacter = 0x7F;
// UTF-8 lead bytes of two-, three- and four-byte sequences, and their continuation bytes.
constexpr std::uint8_t continuationMask = 0xC0;
constexpr std::uint8_t continuationBits = 0x80;
constexpr std::uint8_t twoByteLead = 0xC2;
constexpr std::uint8_t threeByteLead = 0xE0;
constexpr std::uint8_t fourByteLead = 0xF0;
constexpr std::uint8_t pastLeads = 0xF5;
// The C1 control characters, U+0080 to U+009F, are 0xC2 followed by 0x80 to 0x9F.
constexpr std::uint8_t lastC1Continuation = 0x9F;

std::string quoted(std::string_view name) {
    std::string text(1, '"');
    text.append(name);
    text += '"';
    return text;
}

// The length of the UTF-8 sequence starting with `lead`; 0 for a byte that starts none (a
// continuation byte, the overlong leads 0xC0 and 0xC1, or a lead past U+10FFFF's).
std::size_t sequenceLength(std::uint8_t lead) {
    if (lead < continuationBits) return 1;
    if (lead < twoByteLead) return 0;
    if (lead < threeByteLead) return 2;
    if (lead < fourByteLead) return 3;
    if (lead < pastLeads) return 4;
    return 0;
}

// Whether the text is UTF-8; `control` is set when it holds a C0 or C1 control or DEL.
bool validUTF8(std::string_view text, bool& control) {
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<std::uint8_t>(text[i]);
        const std::size_t length = sequenceLength(lead);
        if (length == 0 || i + length > text.size()) return false;
        for (std::size_t k = 1; k < length; ++k) {
            if ((static_cast<std::uint8_t>(text[i + k]) & continuationMask) != continuationBits)
                return false;
        }
        if (lead < firstPrintable || lead == deleteCharacter) control = true;
        if (lead == twoByteLead && static_cast<std::uint8_t>(text[i + 1]) <= lastC1Continuation)
            control = true;
        i += length;
    }
    return true;
}

// Without the grant no window can be read or moved: saying so beats "no windows".
constexpr std::string_view noGrant = "Vistrel has no Accessibility permission";

std::string windowCount(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " window" : " windows");
}

void finish(const LayoutRequests::Done& done, bool ok, std::string message) {
    if (done) done({ok, std::move(message)});
}

// Logs why nothing was done and says so.
void refuse(const LayoutRequests::Done& done, const std::string& reason, std::string_view from) {
    LayoutRequests::logRefusal(from, reason);
    finish(done, false, reason);
}

std::optional<SavedLayout> firstNamed(const std::vector<SavedLayout>& layouts,
                                      const std::string& name) {
    const auto found =
        std::ranges::find_if(layouts, [&name](const SavedLayout& l) { return l.name == name; });
    if (found == layouts.end()) return std::nullopt;
    return *found;
}

// Keeps the captured windows under the name: in place of the first layout of that name,
// keeping its identity, or at the end. Whether the store took it.
bool keepNamed(DefaultsStore& store, SavedLayout layout, bool& replaced) {
    std::vector<SavedLayout> layouts = LayoutStore::load(store);
    const auto same = std::ranges::find_if(
        layouts, [&layout](const SavedLayout& l) { return l.name == layout.name; });
    replaced = same != layouts.end();
    if (replaced) {
        layout.id = same->id;
        *same = layout;
    } else {
        layouts.push_back(layout);
    }
    LayoutStore::replace(store, std::move(layouts));
    return firstNamed(LayoutStore::load(store), layout.name) == layout;
}

}  // namespace

std::optional<std::string> LayoutRequests::problem(std::string_view name) {
    if (auto problem = nameProblem(name)) return problem;
    if (!platform().accessibility.isProcessTrusted()) return std::string(noGrant);
    return std::nullopt;
}

std::optional<std::string> LayoutRequests::nameProblem(std::string_view name) {
    if (name.empty()) return "no name given";
    bool control = false;
    if (!validUTF8(name, control)) return "the name is not UTF-8 text";
    if (control) return "the name holds a control character";
    return std::nullopt;
}

void LayoutRequests::logRefusal(std::string_view from, const std::string& reason) {
    Log::info("layouts: refused a request " + std::string(from) + ": " + reason);
}

std::vector<std::string> LayoutRequests::names() {
    std::vector<std::string> names;
    for (const SavedLayout& layout : LayoutStore::load(*Shared::store()))
        names.push_back(layout.name);
    return names;
}

void LayoutRequests::apply(const std::string& name, std::string_view from, Done done) {
    if (auto why = problem(name)) return refuse(done, *why, from);
    const auto layout = firstNamed(LayoutStore::load(*Shared::store()), name);
    if (!layout) return refuse(done, "no layout named " + quoted(name), from);
    Log::info("layouts: restoring " + quoted(name) + " " + std::string(from));
    const auto total = layout->windows.size();
    LayoutActions::restore(*layout, [name, total, done](const LayoutActions::Restored& restored) {
        const std::string gone =
            restored.documentsGone > 0 ? " (" + restored.goneMessage() + ")" : std::string();
        if (restored.moved.empty()) {
            return finish(done, false,
                          "none of the windows of " + quoted(name) + " are open" + gone);
        }
        finish(done, true,
               "restored " + quoted(name) + ", " + std::to_string(restored.moved.size()) + " of " +
                   std::to_string(total) + " windows" + gone);
    });
}

void LayoutRequests::save(const std::string& name, std::string_view from, Done done) {
    if (auto why = problem(name)) return refuse(done, *why, from);
    LayoutActions::captureCurrent(
        [name, from = std::string(from), done](std::optional<SavedLayout> layout) {
            if (!layout) return refuse(done, "no windows to save as " + quoted(name), from);
            layout->name = name;
            bool replaced = false;
            if (!keepNamed(*Shared::store(), *layout, replaced)) {
                return finish(done, false, "the layout could not be saved");
            }
            const std::size_t count = layout->windows.size();
            Log::info("layouts: saved the current windows as " + quoted(name) + " (" +
                      std::to_string(count) + ") " + from +
                      (replaced ? ", in place of the layout of that name" : ""));
            finish(done, true,
                   (replaced ? "replaced " : "saved ") + quoted(name) + ", " + windowCount(count));
        });
}

void LayoutRequests::undo(std::string_view from, Done done) {
    if (!platform().accessibility.isProcessTrusted())
        return refuse(done, std::string(noGrant), from);
    LayoutActions::undo(
        [from = std::string(from), done](std::optional<LayoutUndo::Outcome> outcome) {
            if (!outcome) return refuse(done, "nothing to undo", from);
            finish(done, true, outcome->message());
        });
}

}  // namespace vistrel
