#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vistrel {

// A property-list value as NSUserDefaults stores it: nothing, a Boolean, an integer, a
// floating-point number, text, data, an array or a dictionary. Integers and doubles are
// kept apart, as NSNumber keeps them apart on the way in; readers decide what they accept.
class DefaultsValue {
  public:
    using Data = std::vector<std::uint8_t>;
    using Array = std::vector<DefaultsValue>;
    using Dictionary = std::map<std::string, DefaultsValue>;

    DefaultsValue() = default;
    DefaultsValue(bool value) : value_(value) {}
    DefaultsValue(int value) : value_(std::int64_t{value}) {}
    DefaultsValue(std::int64_t value) : value_(value) {}
    DefaultsValue(double value) : value_(value) {}
    DefaultsValue(std::string value) : value_(std::move(value)) {}
    DefaultsValue(const char* value) : value_(std::string(value)) {}
    DefaultsValue(Data value) : value_(std::move(value)) {}
    DefaultsValue(Array value) : value_(std::move(value)) {}
    DefaultsValue(Dictionary value) : value_(std::move(value)) {}

    bool isNone() const { return std::holds_alternative<std::monostate>(value_); }
    std::optional<bool> boolean() const { return get<bool>(); }
    std::optional<std::int64_t> integer() const { return get<std::int64_t>(); }
    std::optional<std::string> string() const { return get<std::string>(); }
    std::optional<Data> data() const { return get<Data>(); }
    std::optional<Array> array() const { return get<Array>(); }
    std::optional<Dictionary> dictionary() const { return get<Dictionary>(); }
    // A number of either kind, as a double (NSNumber's doubleValue); Booleans are not numbers.
    std::optional<double> number() const {
        if (auto d = get<double>()) return d;
        if (auto i = get<std::int64_t>()) return static_cast<double>(*i);
        return std::nullopt;
    }

    friend bool operator==(const DefaultsValue&, const DefaultsValue&) = default;

  private:
    template <typename T>
    std::optional<T> get() const {
        if (const T* v = std::get_if<T>(&value_)) return *v;
        return std::nullopt;
    }

    std::variant<std::monostate, bool, std::int64_t, double, std::string, Data, Array, Dictionary>
        value_;
};

}  // namespace vistrel
