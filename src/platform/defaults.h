#pragma once

#include <memory>
#include <string>

#include "platform/defaults_value.h"

namespace vistrel {

// One user-defaults domain (NSUserDefaults). Safe to use from any thread.
class DefaultsStore {
  public:
    virtual ~DefaultsStore() = default;
    // object(forKey:): nothing when the key is missing.
    virtual DefaultsValue object(const std::string& key) = 0;
    // set(_:forKey:); setting nothing removes the key.
    virtual void set(const std::string& key, const DefaultsValue& value) = 0;
    // removeObject(forKey:).
    virtual void remove(const std::string& key) = 0;
};

// Where defaults stores come from.
class Defaults {
  public:
    virtual ~Defaults() = default;
    // NSUserDefaults.standard: the domain of the main bundle's identifier.
    virtual std::shared_ptr<DefaultsStore> standard() = 0;
    // NSUserDefaults(suiteName:); nothing when the suite cannot be made.
    virtual std::shared_ptr<DefaultsStore> suite(const std::string& name) = 0;
};

}  // namespace vistrel
