#include "settings/updates.h"

#include <memory>
#include <mutex>
#include <string>

#include "base/log.h"
#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view noKey = "updates: off, no Sparkle public key in this build";
constexpr std::string_view startFailed = "updates: could not start: ";
constexpr std::string_view checking = "updates: checking ";
constexpr std::string_view installsAutomaticallyLine = "updates: install automatically ";

bool hasPublicKey() {
    const auto key = platform().infoDictionary.string(std::string(Updates::publicKeyInfoKey));
    return key && key->size() == Updates::publicKeyLength;
}

std::unique_ptr<Updater> makeUpdater() {
    if (!hasPublicKey()) {
        Log::info(noKey);
        return nullptr;
    }
    return platform().updates.makeUpdater();
}

}  // namespace

Updater* Updates::updater() {
    // Made once per installed platform (tests install a fresh desktop each time).
    static std::mutex mutex;
    static std::unique_ptr<Updater> made;
    static std::uint64_t madeFor = 0;
    std::lock_guard lock(mutex);
    if (madeFor != platformGeneration()) {
        made = makeUpdater();
        madeFor = platformGeneration();
    }
    return made.get();
}

void Updates::start() {
    Updater* updater = Updates::updater();
    if (updater == nullptr) return;
    if (auto failure = updater->start()) {
        Log::error(std::string(startFailed) + *failure);
        return;
    }
    Log::info(std::string(checking) + updater->feedURL().value_or(std::string()));
}

void Updates::checkForUpdates() {
    if (Updater* updater = Updates::updater()) updater->checkForUpdates();
}

bool Updates::installsAutomatically() {
    Updater* updater = Updates::updater();
    return updater != nullptr && updater->automaticallyDownloadsUpdates();
}

void Updates::setInstallsAutomatically(bool on) {
    Updater* updater = Updates::updater();
    if (updater == nullptr) return;
    updater->setAutomaticallyDownloadsUpdates(on);
    Log::info(std::string(installsAutomaticallyLine) + (on ? "on" : "off"));
}

}  // namespace vistrel
