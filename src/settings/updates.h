#pragma once

#include <cstddef>
#include <string_view>

#include "platform/updater.h"

namespace vistrel {

// The thin layer around the Sparkle updater: whether this build can update itself at all,
// starting the updater, the user-visible check, and automatic installation. The feed, its
// signatures and the download and install flow are Sparkle's.
struct Updates {
    // The information-dictionary key of the feed's public signing key, and its length: a
    // base64-encoded 32-byte key.
    static constexpr std::string_view publicKeyInfoKey = "SUPublicEDKey";
    static constexpr std::size_t publicKeyLength = 44;

    // The updater, made on first use for the installed platform; nullptr when this build
    // has no usable public key, in which case the menu shows no update rows.
    static Updater* updater();
    // Starts the updater, when there is one, and logs how that went. Called once at start-up.
    static void start();
    // The user-visible check of the status panel and of the "checkForUpdates" command.
    static void checkForUpdates();
    static bool installsAutomatically();
    static void setInstallsAutomatically(bool on);
};

}  // namespace vistrel
