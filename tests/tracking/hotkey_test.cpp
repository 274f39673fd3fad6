#include "base/hotkey.h"

#include <gtest/gtest.h>

#include "settings/shared.h"

namespace vistrel {
namespace {

using namespace ModifierFlag;

// Flag bits that are not modifiers the shortcuts care about.
constexpr std::uint64_t capsLock = 0x10000;
constexpr std::uint64_t numericPad = 0x200000;
constexpr std::uint64_t secondaryFn = 0x800000;
constexpr std::uint64_t leftCommandDevice = 0x8;

TEST(Hotkey, EachShortcutHasItsFixedKeyAndModifiers) {
    struct Expected {
        Hotkey hotkey;
        std::int64_t key;
        std::uint64_t modifiers;
    };
    const Expected table[] = {
        {Hotkey::close, 13, command},    {Hotkey::closeAll, 13, command | option},
        {Hotkey::minimize, 46, command}, {Hotkey::maximize, 3, command},
        {Hotkey::hide, 4, command},      {Hotkey::hideOthers, 4, command | option},
        {Hotkey::kill, 12, command},
    };
    for (const Expected& e : table) {
        SCOPED_TRACE(std::string(name(e.hotkey)));
        EXPECT_EQ(keyCode(e.hotkey), e.key);
        EXPECT_EQ(modifiers(e.hotkey), e.modifiers);
        EXPECT_EQ(matchHotkey(e.key, e.modifiers), e.hotkey);
    }
}

TEST(Hotkey, ShiftOrControlAddedOrNoCommandMatchesNothing) {
    EXPECT_FALSE(matchHotkey(KeyCode::w, command | shift));
    EXPECT_FALSE(matchHotkey(KeyCode::w, command | control));
    EXPECT_FALSE(matchHotkey(KeyCode::w, 0));
    EXPECT_FALSE(matchHotkey(KeyCode::w, option));
    EXPECT_FALSE(matchHotkey(KeyCode::h, command | option | shift));
}

TEST(Hotkey, CommandWithCapsLockStillMatchesClose) {
    EXPECT_EQ(matchHotkey(KeyCode::w, command | capsLock), Hotkey::close);
}

TEST(Hotkey, FunctionNumericPadAndDeviceBitsAreIgnored) {
    EXPECT_EQ(matchHotkey(KeyCode::h, command | option | secondaryFn | numericPad),
              Hotkey::hideOthers);
    EXPECT_EQ(matchHotkey(KeyCode::q, command | leftCommandDevice), Hotkey::kill);
}

TEST(Hotkey, OptionVariantsExistOnlyForCloseAndHide) {
    EXPECT_FALSE(matchHotkey(KeyCode::m, command | option));
    EXPECT_FALSE(matchHotkey(KeyCode::f, command | option));
    EXPECT_FALSE(matchHotkey(KeyCode::q, command | option));
}

TEST(Hotkey, OtherKeysMatchNothing) {
    EXPECT_FALSE(matchHotkey(KeyCode::escape, command));
    EXPECT_FALSE(matchHotkey(KeyCode::returnKey, command));
}

TEST(Hotkey, RawValuesRunFromZeroToSix) {
    for (int raw = 0; raw < 7; ++raw) {
        const auto hotkey = hotkeyFromRaw(raw);
        ASSERT_TRUE(hotkey.has_value());
        EXPECT_EQ(static_cast<int>(*hotkey), raw);
        EXPECT_EQ(allHotkeys[static_cast<std::size_t>(raw)], *hotkey);
    }
    EXPECT_FALSE(hotkeyFromRaw(7));
    EXPECT_FALSE(hotkeyFromRaw(-1));
}

TEST(Hotkey, DisablingKeyNamesTheCase) {
    EXPECT_EQ(Shared::Key::hotkeyDisabled(*hotkeyFromRaw(5)), "hotkey.hideOthers.disabled");
    EXPECT_EQ(Shared::Key::hotkeyDisabled(Hotkey::closeAll), "hotkey.closeAll.disabled");
    EXPECT_EQ(Shared::Key::hotkeyDisabled(Hotkey::kill), "hotkey.kill.disabled");
}

}  // namespace
}  // namespace vistrel
