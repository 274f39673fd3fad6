#include "platform/mac/mac_defaults.h"

#import <Foundation/Foundation.h>

#include "platform/mac/mac_property_list.h"
#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {

class MacDefaultsStore : public DefaultsStore {
  public:
    explicit MacDefaultsStore(NSUserDefaults* defaults) : defaults_(defaults) {}
    DefaultsValue object(const std::string& key) override {
        return MacPropertyList::value([defaults_ objectForKey:nsString(key)]);
    }
    void set(const std::string& key, const DefaultsValue& value) override {
        [defaults_ setObject:MacPropertyList::object(value) forKey:nsString(key)];
    }
    void remove(const std::string& key) override { [defaults_ removeObjectForKey:nsString(key)]; }

  private:
    NSUserDefaults* defaults_;
};

}  // namespace

std::shared_ptr<DefaultsStore> MacDefaults::standard() {
    return std::make_shared<MacDefaultsStore>([NSUserDefaults standardUserDefaults]);
}

std::shared_ptr<DefaultsStore> MacDefaults::suite(const std::string& name) {
    NSUserDefaults* suite = [[NSUserDefaults alloc] initWithSuiteName:nsString(name)];
    if (suite == nil) return nullptr;
    return std::make_shared<MacDefaultsStore>(suite);
}

}  // namespace vistrel
