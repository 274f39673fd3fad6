#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/sim_defaults.h"
#include "settings/shared.h"
#include "settings_app/settings_model.h"
#include "support/sim_test.h"

namespace vistrel::testing {

// The Settings app as its own process on the simulated desktop: its bundle identifier is not
// the domain's, so its store is the shared domain opened as a suite. `domain` is that domain
// as the agent sees it.
class SettingsAppTest : public SimTest {
  protected:
    SettingsAppTest() {
        desktop.bundle.identifier = std::string(SettingsModel::bundleIdentifier);
        store = Shared::store();
    }

    // A model launched with these arguments (after the program's path).
    std::unique_ptr<SettingsModel> launch(std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.begin(),
                         "/Applications/Vistrel.app/Contents/Helpers/"
                         "Vistrel Settings.app/Contents/MacOS/Vistrel Settings");
        return std::make_unique<SettingsModel>(store, LaunchOptions::fromArguments(arguments));
    }

    DefaultsValue stored(std::string_view key) { return domain->object(std::string(key)); }
    void put(std::string_view key, DefaultsValue value) { domain->set(std::string(key), value); }
    // The agent writes one of its status keys.
    void agentPublishes(std::string_view key, bool value) { put(key, value); }
    void wait(double seconds) { desktop.executor().advance(seconds); }

    std::shared_ptr<DefaultsStore> store;
    std::shared_ptr<SimDefaultsStore> domain =
        desktop.defaults().domain(std::string(Shared::domain));
};

}  // namespace vistrel::testing
