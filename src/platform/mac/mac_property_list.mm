#include "platform/mac/mac_property_list.h"

#include "platform/mac/mac_strings.h"

namespace vistrel::MacPropertyList {

namespace {

DefaultsValue numberValue(NSNumber* number) {
    // NSNumber keeps Booleans apart from integers only through their Core Foundation type.
    if (CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID()) {
        return DefaultsValue(static_cast<bool>(number.boolValue));
    }
    if (CFNumberIsFloatType((__bridge CFNumberRef)number)) return DefaultsValue(number.doubleValue);
    return DefaultsValue(static_cast<std::int64_t>(number.longLongValue));
}

DefaultsValue dataValue(NSData* data) {
    const auto* bytes = static_cast<const std::uint8_t*>(data.bytes);
    return DefaultsValue(DefaultsValue::Data(bytes, bytes + data.length));
}

DefaultsValue arrayValue(NSArray* source) {
    DefaultsValue::Array array;
    for (id element in source)
        array.push_back(value(element));
    return DefaultsValue(std::move(array));
}

DefaultsValue dictionaryValue(NSDictionary* source) {
    DefaultsValue::Dictionary dictionary;
    for (id key in source) {
        if (auto name = utf8Text(key)) dictionary[*name] = value(source[key]);
    }
    return DefaultsValue(std::move(dictionary));
}

}  // namespace

DefaultsValue value(id object) {
    if (object == nil) return {};
    if ([object isKindOfClass:[NSNumber class]]) return numberValue(object);
    if ([object isKindOfClass:[NSString class]]) {
        if (auto text = utf8Text(object)) return DefaultsValue(std::move(*text));
        return {};
    }
    if ([object isKindOfClass:[NSData class]]) return dataValue(object);
    if ([object isKindOfClass:[NSArray class]]) return arrayValue(object);
    if ([object isKindOfClass:[NSDictionary class]]) return dictionaryValue(object);
    return {};
}

id object(const DefaultsValue& value) {
    if (auto b = value.boolean()) return @(*b);
    if (auto i = value.integer()) return @(*i);
    if (auto d = value.number()) return @(*d);
    if (auto s = value.string()) return nsString(*s);
    if (auto data = value.data()) return [NSData dataWithBytes:data->data() length:data->size()];
    if (auto array = value.array()) {
        NSMutableArray* result = [NSMutableArray arrayWithCapacity:array->size()];
        for (const auto& element : *array) {
            if (id converted = object(element)) [result addObject:converted];
        }
        return result;
    }
    if (auto dictionary = value.dictionary()) {
        NSMutableDictionary* result = [NSMutableDictionary dictionary];
        for (const auto& [key, element] : *dictionary) {
            if (id converted = object(element)) result[nsString(key)] = converted;
        }
        return result;
    }
    return nil;
}

}  // namespace vistrel::MacPropertyList
