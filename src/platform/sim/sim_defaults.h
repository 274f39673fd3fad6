#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "platform/defaults.h"

namespace vistrel {

// The fault the defaults system can stage: with the disk full, writes do not take and every
// domain keeps the values it had.
struct SimDefaultsDisk {
    std::atomic<bool> full = false;
};

// One in-memory defaults domain, shared by every process of the simulation that opens it.
class SimDefaultsStore : public DefaultsStore {
  public:
    explicit SimDefaultsStore(std::shared_ptr<const SimDefaultsDisk> disk = nullptr)
        : disk_(std::move(disk)) {}

    DefaultsValue object(const std::string& key) override;
    void set(const std::string& key, const DefaultsValue& value) override;
    void remove(const std::string& key) override;
    // How many times a key was written, so tests can tell an unchanged value was left alone.
    int writes(const std::string& key) const;

  private:
    bool diskFull() const { return disk_ && disk_->full; }

    std::shared_ptr<const SimDefaultsDisk> disk_;
    mutable std::mutex mutex_;
    std::map<std::string, DefaultsValue> values_;
    std::map<std::string, int> writes_;
};

// The simulated user-defaults system: domains by name, the standard one being the domain
// of the current process's bundle identifier.
class SimDefaults : public Defaults {
  public:
    explicit SimDefaults(const std::optional<std::string>& bundleIdentifier)
        : bundleIdentifier_(bundleIdentifier) {}

    std::shared_ptr<DefaultsStore> standard() override;
    std::shared_ptr<DefaultsStore> suite(const std::string& name) override;

    // The store of a domain, made on first use.
    std::shared_ptr<SimDefaultsStore> domain(const std::string& name);
    // When set, suites cannot be made (NSUserDefaults(suiteName:) answers nil).
    bool suitesFail = false;
    // Fills or frees the disk under every domain.
    void setDiskFull(bool full) { disk_->full = full; }

  private:
    const std::optional<std::string>& bundleIdentifier_;
    std::shared_ptr<SimDefaultsDisk> disk_ = std::make_shared<SimDefaultsDisk>();
    std::mutex mutex_;
    std::map<std::string, std::shared_ptr<SimDefaultsStore>> domains_;
};

}  // namespace vistrel
