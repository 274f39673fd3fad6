#include "platform/sim/sim_defaults.h"

namespace vistrel {

namespace {
// The domain a process without a bundle identifier gets as its standard defaults.
const std::string anonymousDomain = "(no bundle identifier)";
}  // namespace

DefaultsValue SimDefaultsStore::object(const std::string& key) {
    std::lock_guard lock(mutex_);
    auto found = values_.find(key);
    return found == values_.end() ? DefaultsValue{} : found->second;
}

void SimDefaultsStore::set(const std::string& key, const DefaultsValue& value) {
    std::lock_guard lock(mutex_);
    ++writes_[key];
    if (diskFull()) return;
    if (value.isNone()) {
        values_.erase(key);
    } else {
        values_[key] = value;
    }
}

void SimDefaultsStore::remove(const std::string& key) {
    std::lock_guard lock(mutex_);
    if (diskFull()) return;
    values_.erase(key);
}

int SimDefaultsStore::writes(const std::string& key) const {
    std::lock_guard lock(mutex_);
    auto found = writes_.find(key);
    return found == writes_.end() ? 0 : found->second;
}

std::shared_ptr<DefaultsStore> SimDefaults::standard() {
    return domain(bundleIdentifier_.value_or(anonymousDomain));
}

std::shared_ptr<DefaultsStore> SimDefaults::suite(const std::string& name) {
    if (suitesFail) return nullptr;
    return domain(name);
}

std::shared_ptr<SimDefaultsStore> SimDefaults::domain(const std::string& name) {
    std::lock_guard lock(mutex_);
    auto& store = domains_[name];
    if (!store) store = std::make_shared<SimDefaultsStore>(disk_);
    return store;
}

}  // namespace vistrel
