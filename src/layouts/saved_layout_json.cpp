#include "layouts/saved_layout_json.h"

#include <cmath>

#include <nlohmann/json.hpp>

namespace vistrel {

namespace {

using nlohmann::json;

namespace Key {
constexpr char created[] = "created";
constexpr char id[] = "id";
constexpr char name[] = "name";
constexpr char windows[] = "windows";
constexpr char app[] = "app";
constexpr char bundleID[] = "bundleID";
constexpr char display[] = "display";
constexpr char displays[] = "displays";
constexpr char document[] = "document";
constexpr char frame[] = "frame";
constexpr char rect[] = "rect";
constexpr char title[] = "title";
constexpr char x[] = "x";
constexpr char y[] = "y";
constexpr char w[] = "w";
constexpr char h[] = "h";
}  // namespace Key

// Encoding. ------------------------------------------------------------------------------

bool isFinite(const UnitRect& r) {
    return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.w) && std::isfinite(r.h);
}

// A display's frame is written as a rect of points.
UnitRect asRect(Rect frame) {
    return {frame.x, frame.y, frame.width, frame.height};
}

bool isEncodable(const SavedLayout& layout) {
    if (!std::isfinite(layout.created)) return false;
    for (const auto& window : layout.windows) {
        if (!isFinite(window.rect)) return false;
    }
    for (const auto& display : layout.displays) {
        if (!isFinite(asRect(display.frame))) return false;
    }
    return true;
}

json toJSON(const UnitRect& r) {
    return {{Key::x, r.x}, {Key::y, r.y}, {Key::w, r.w}, {Key::h, r.h}};
}

json toJSON(const SavedLayout::Window& window) {
    json object{{Key::app, window.app},
                {Key::bundleID, window.bundleID},
                {Key::rect, toJSON(window.rect)},
                {Key::title, window.title}};
    if (window.display) object[Key::display] = *window.display;
    if (window.document) object[Key::document] = *window.document;
    return object;
}

json toJSON(const SavedLayout& layout) {
    json windows = json::array();
    for (const auto& window : layout.windows)
        windows.push_back(toJSON(window));
    json object{{Key::created, layout.created},
                {Key::id, layout.id.string()},
                {Key::name, layout.name},
                {Key::windows, std::move(windows)}};
    if (layout.displays.empty()) return object;
    json displays = json::array();
    for (const auto& display : layout.displays)
        displays.push_back({{Key::frame, toJSON(asRect(display.frame))}, {Key::id, display.id}});
    object[Key::displays] = std::move(displays);
    return object;
}

// Decoding. ------------------------------------------------------------------------------

// The value under `key`; nothing when the key is missing or holds null, as an optional key
// would read.
const json* present(const json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end() || found->is_null()) return nullptr;
    return &*found;
}

// A present text, or nothing when the key is missing, null or not text.
std::optional<std::string> text(const json& object, const char* key) {
    const json* value = present(object, key);
    if (!value || !value->is_string()) return std::nullopt;
    return value->get<std::string>();
}

std::optional<double> number(const json& value) {
    if (!value.is_number()) return std::nullopt;
    const double result = value.get<double>();
    // A number too large for a double parses as infinity; it is not a readable value.
    if (!std::isfinite(result)) return std::nullopt;
    return result;
}

std::optional<double> number(const json& object, const char* key) {
    const json* value = present(object, key);
    if (!value) return std::nullopt;
    return number(*value);
}

std::optional<UnitRect> rectFrom(const json& value) {
    if (!value.is_object()) return std::nullopt;
    const auto x = number(value, Key::x);
    const auto y = number(value, Key::y);
    const auto w = number(value, Key::w);
    const auto h = number(value, Key::h);
    if (!x || !y || !w || !h) return std::nullopt;
    return UnitRect{*x, *y, *w, *h};
}

std::optional<SavedLayout::Window> windowFrom(const json& value) {
    if (!value.is_object()) return std::nullopt;
    auto bundleID = text(value, Key::bundleID);
    auto app = text(value, Key::app);
    auto title = text(value, Key::title);
    const json* rectValue = present(value, Key::rect);
    if (!bundleID || !app || !title || !rectValue) return std::nullopt;
    const auto rect = rectFrom(*rectValue);
    if (!rect) return std::nullopt;
    SavedLayout::Window window{std::move(*bundleID), std::move(*app), std::move(*title), *rect,
                               std::nullopt};
    if (const json* display = present(value, Key::display)) {
        if (!display->is_string()) return std::nullopt;
        window.display = display->get<std::string>();
    }
    // Windows saved before layouts knew documents have none.
    if (const json* document = present(value, Key::document)) {
        if (!document->is_string()) return std::nullopt;
        window.document = document->get<std::string>();
    }
    return window;
}

std::optional<std::vector<SavedLayout::Window>> windowsFrom(const json* value) {
    if (!value || !value->is_array()) return std::nullopt;
    std::vector<SavedLayout::Window> windows;
    windows.reserve(value->size());
    for (const auto& element : *value) {
        auto window = windowFrom(element);
        if (!window) return std::nullopt;
        windows.push_back(std::move(*window));
    }
    return windows;
}

std::optional<SavedLayout::Display> displayFrom(const json& value) {
    if (!value.is_object()) return std::nullopt;
    auto id = text(value, Key::id);
    const json* frameValue = present(value, Key::frame);
    if (!id || !frameValue) return std::nullopt;
    const auto frame = rectFrom(*frameValue);
    if (!frame) return std::nullopt;
    return SavedLayout::Display{std::move(*id), {frame->x, frame->y, frame->w, frame->h}};
}

// A layout saved before layouts remembered their displays has none.
std::optional<std::vector<SavedLayout::Display>> displaysFrom(const json* value) {
    if (!value) return std::vector<SavedLayout::Display>{};
    if (!value->is_array()) return std::nullopt;
    std::vector<SavedLayout::Display> displays;
    for (const auto& element : *value) {
        auto display = displayFrom(element);
        if (!display) return std::nullopt;
        displays.push_back(std::move(*display));
    }
    return displays;
}

std::optional<UUID> idFrom(const json* value) {
    if (!value) return UUID::random();
    if (!value->is_string()) return std::nullopt;
    return UUID::parse(value->get_ref<const std::string&>());
}

std::optional<std::string> nameFrom(const json* value) {
    if (!value) return std::string(SavedLayout::defaultName);
    if (!value->is_string()) return std::nullopt;
    return value->get<std::string>();
}

std::optional<double> createdFrom(const json* value, double now) {
    if (!value) return now;
    return number(*value);
}

std::optional<SavedLayout> layoutFrom(const json& value, double now) {
    if (!value.is_object()) return std::nullopt;
    auto id = idFrom(present(value, Key::id));
    auto name = nameFrom(present(value, Key::name));
    auto windows = windowsFrom(present(value, Key::windows));
    const auto created = createdFrom(present(value, Key::created), now);
    auto displays = displaysFrom(present(value, Key::displays));
    if (!id || !name || !windows || !created || !displays) return std::nullopt;
    return SavedLayout{*id, std::move(*name), std::move(*windows), *created, std::move(*displays)};
}

}  // namespace

std::optional<std::string> SavedLayoutJSON::encode(const std::vector<SavedLayout>& layouts) {
    json list = json::array();
    for (const auto& layout : layouts) {
        if (!isEncodable(layout)) return std::nullopt;
        list.push_back(toJSON(layout));
    }
    try {
        // Compact, UTF-8 rather than \u escapes, and a refusal of invalid UTF-8 in any text.
        return list.dump(-1, ' ', false, json::error_handler_t::strict);
    } catch (const json::exception&) {
        return std::nullopt;
    }
}

std::optional<std::vector<SavedLayout>> SavedLayoutJSON::decode(std::string_view text, double now) {
    const json list = json::parse(text, nullptr, /*allow_exceptions=*/false);
    if (!list.is_array()) return std::nullopt;
    std::vector<SavedLayout> layouts;
    layouts.reserve(list.size());
    for (const auto& element : list) {
        auto layout = layoutFrom(element, now);
        if (!layout) return std::nullopt;
        layouts.push_back(std::move(*layout));
    }
    return layouts;
}

}  // namespace vistrel
