#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vistrel {

// Modifier bits of a Quartz event's flags (CGEventFlags).
namespace ModifierFlag {
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
inline constexpr std::uint64_t relevant = shift | control | option | command;
}  // namespace ModifierFlag

// macOS virtual key codes (ANSI positions) the agent reacts to.
namespace KeyCode {
inline constexpr std::int64_t f = 3;
inline constexpr std::int64_t h = 4;
inline constexpr std::int64_t q = 12;
inline constexpr std::int64_t w = 13;
inline constexpr std::int64_t m = 46;
inline constexpr std::int64_t returnKey = 36;
inline constexpr std::int64_t escape = 53;
inline constexpr std::int64_t space = 49;
inline constexpr std::int64_t keypadEnter = 76;
inline constexpr std::int64_t downArrow = 125;
inline constexpr std::int64_t upArrow = 126;
}  // namespace KeyCode

// The seven shortcuts that act on the hovered window. The raw values are stable: they
// name the shortcuts in stored preferences and across the code.
enum class Hotkey : int { close = 0, closeAll, minimize, maximize, hide, hideOthers, kill };

inline constexpr std::array<Hotkey, 7> allHotkeys = {
    Hotkey::close, Hotkey::closeAll,   Hotkey::minimize, Hotkey::maximize,
    Hotkey::hide,  Hotkey::hideOthers, Hotkey::kill};

// The case name, as it appears in preference keys and log lines ("closeAll").
std::string_view name(Hotkey hotkey);

// The hotkey of a raw value; nothing outside 0 to 6.
std::optional<Hotkey> hotkeyFromRaw(int raw);

// The key code and modifiers that trigger a hotkey.
std::int64_t keyCode(Hotkey hotkey);
std::uint64_t modifiers(Hotkey hotkey);

// The hotkey a key press means. Only Shift, Control, Option and Command count; Caps Lock,
// Fn and device bits are ignored. Command alone or Command with Option, nothing else.
std::optional<Hotkey> matchHotkey(std::int64_t keyCode, std::uint64_t flags);

}  // namespace vistrel
