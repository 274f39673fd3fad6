#include "base/hotkey.h"

namespace vistrel {

namespace {

struct HotkeyEntry {
    Hotkey hotkey;
    std::string_view name;
    std::int64_t keyCode;
    std::uint64_t modifiers;
};

constexpr std::uint64_t commandOption = ModifierFlag::command | ModifierFlag::option;

constexpr std::array<HotkeyEntry, 7> table = {{
    {Hotkey::close, "close", KeyCode::w, ModifierFlag::command},
    {Hotkey::closeAll, "closeAll", KeyCode::w, commandOption},
    {Hotkey::minimize, "minimize", KeyCode::m, ModifierFlag::command},
    {Hotkey::maximize, "maximize", KeyCode::f, ModifierFlag::command},
    {Hotkey::hide, "hide", KeyCode::h, ModifierFlag::command},
    {Hotkey::hideOthers, "hideOthers", KeyCode::h, commandOption},
    {Hotkey::kill, "kill", KeyCode::q, ModifierFlag::command},
}};

const HotkeyEntry& entry(Hotkey hotkey) {
    return table[static_cast<std::size_t>(hotkey)];
}

}  // namespace

std::string_view name(Hotkey hotkey) {
    return entry(hotkey).name;
}

std::optional<Hotkey> hotkeyFromRaw(int raw) {
    if (raw < 0 || raw >= static_cast<int>(table.size())) return std::nullopt;
    return static_cast<Hotkey>(raw);
}

std::int64_t keyCode(Hotkey hotkey) {
    return entry(hotkey).keyCode;
}

std::uint64_t modifiers(Hotkey hotkey) {
    return entry(hotkey).modifiers;
}

std::optional<Hotkey> matchHotkey(std::int64_t code, std::uint64_t flags) {
    const std::uint64_t held = flags & ModifierFlag::relevant;
    for (const HotkeyEntry& e : table) {
        if (e.keyCode == code && e.modifiers == held) return e.hotkey;
    }
    return std::nullopt;
}

}  // namespace vistrel
