#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/command_fuzz.h"
#include "fuzz/fixed_inputs.h"

namespace vistrel {
namespace {

using Dictionary = DefaultsValue::Dictionary;

TEST(CommandFuzzRegression, WellFormedCommandsAndNearMissesKeepThePromise) {
    const std::vector<NotificationCenter::UserInfo> inputs{
        std::nullopt,
        Dictionary{},
        Dictionary{{"command", "applySettings"}},
        Dictionary{{"command", "requestAccessibility"}},
        Dictionary{{"command", "setLaunchAtLogin"}, {"value", true}},
        Dictionary{{"command", "setLaunchAtLogin"}, {"value", Dictionary{{"value", true}}}},
        Dictionary{{"command", "checkForUpdates"}},
        Dictionary{{"command", "CheckForUpdates"}},
        Dictionary{{"command", std::string("applySettings\0", 14)}},
        Dictionary{{"command", DefaultsValue::Data{'a', 'p', 'p'}}},
        Dictionary{{"command", DefaultsValue::Array{"applySettings"}}},
        Dictionary{{"Command", "applySettings"}},
        Dictionary{{"command", "applyLayout"}, {"name", "Desk"}, {"reply", "r"}},
        Dictionary{{"command", "applyLayout"}, {"name", "Desk"}},
        Dictionary{{"command", "saveLayout"}, {"name", 3}, {"reply", "r"}},
        Dictionary{{"command", "listLayouts"}, {"reply", ""}},
        Dictionary{{"command", "listLayouts"}, {"reply", DefaultsValue::Array{"r"}}},
        Dictionary{{"command", "ListLayouts"}, {"reply", "r"}},
    };
    for (const auto& input : inputs)
        EXPECT_TRUE(fuzz::dispatchKeepsItsPromise(input));
}

TEST(CommandFuzzRegression, ArbitraryBytesKeepThePromise) {
    constexpr int inputs = 500;
    constexpr std::size_t bytesEach = 48;
    int i = 0;
    for (const std::string& bytes : fuzz::fixedInputs(1, inputs, bytesEach)) {
        const auto userInfo = fuzz::UserInfoReader(bytes).userInfo();
        ASSERT_TRUE(fuzz::dispatchKeepsItsPromise(userInfo)) << "input " << i++;
    }
}

}  // namespace
}  // namespace vistrel
