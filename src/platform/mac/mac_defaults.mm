#include "platform/mac/mac_defaults.h"

#import <Foundation/Foundation.h>

namespace vistrel {

namespace {

DefaultsValue toValue(id object);

DefaultsValue numberValue(NSNumber* number) {
    // NSNumber keeps Booleans apart from integers only through their Core Foundation type.
    if (CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID()) {
        return DefaultsValue(static_cast<bool>(number.boolValue));
    }
    if (CFNumberIsFloatType((__bridge CFNumberRef)number)) return DefaultsValue(number.doubleValue);
    return DefaultsValue(static_cast<std::int64_t>(number.longLongValue));
}

DefaultsValue toValue(id object) {
    if (object == nil) return {};
    if ([object isKindOfClass:[NSNumber class]]) return numberValue(object);
    if ([object isKindOfClass:[NSString class]]) {
        return DefaultsValue(std::string([(NSString*)object UTF8String]));
    }
    if ([object isKindOfClass:[NSData class]]) {
        NSData* data = object;
        const auto* bytes = static_cast<const std::uint8_t*>(data.bytes);
        return DefaultsValue(DefaultsValue::Data(bytes, bytes + data.length));
    }
    if ([object isKindOfClass:[NSArray class]]) {
        DefaultsValue::Array array;
        for (id element in (NSArray*)object)
            array.push_back(toValue(element));
        return DefaultsValue(std::move(array));
    }
    if ([object isKindOfClass:[NSDictionary class]]) {
        DefaultsValue::Dictionary dictionary;
        NSDictionary* source = object;
        for (id key in source) {
            if (![key isKindOfClass:[NSString class]]) continue;
            dictionary[[(NSString*)key UTF8String]] = toValue(source[key]);
        }
        return DefaultsValue(std::move(dictionary));
    }
    return {};
}

id toObject(const DefaultsValue& value) {
    if (auto b = value.boolean()) return @(*b);
    if (auto i = value.integer()) return @(*i);
    if (auto d = value.number()) return @(*d);
    if (auto s = value.string()) return [NSString stringWithUTF8String:s->c_str()];
    if (auto data = value.data()) return [NSData dataWithBytes:data->data() length:data->size()];
    if (auto array = value.array()) {
        NSMutableArray* result = [NSMutableArray arrayWithCapacity:array->size()];
        for (const auto& element : *array) {
            if (id object = toObject(element)) [result addObject:object];
        }
        return result;
    }
    if (auto dictionary = value.dictionary()) {
        NSMutableDictionary* result = [NSMutableDictionary dictionary];
        for (const auto& [key, element] : *dictionary) {
            if (id object = toObject(element)) {
                result[[NSString stringWithUTF8String:key.c_str()]] = object;
            }
        }
        return result;
    }
    return nil;
}

NSString* ns(const std::string& text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

class MacDefaultsStore : public DefaultsStore {
  public:
    explicit MacDefaultsStore(NSUserDefaults* defaults) : defaults_(defaults) {}
    DefaultsValue object(const std::string& key) override {
        return toValue([defaults_ objectForKey:ns(key)]);
    }
    void set(const std::string& key, const DefaultsValue& value) override {
        [defaults_ setObject:toObject(value) forKey:ns(key)];
    }
    void remove(const std::string& key) override { [defaults_ removeObjectForKey:ns(key)]; }

  private:
    NSUserDefaults* defaults_;
};

}  // namespace

std::shared_ptr<DefaultsStore> MacDefaults::standard() {
    return std::make_shared<MacDefaultsStore>([NSUserDefaults standardUserDefaults]);
}

std::shared_ptr<DefaultsStore> MacDefaults::suite(const std::string& name) {
    NSUserDefaults* suite = [[NSUserDefaults alloc] initWithSuiteName:ns(name)];
    if (suite == nil) return nullptr;
    return std::make_shared<MacDefaultsStore>(suite);
}

}  // namespace vistrel
