#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/ax_element.h"
#include "platform/geometry.h"

namespace vistrel {

// The result codes of the accessibility interface, with Apple's AXError values.
enum class AXError : std::int32_t {
    success = 0,
    failure = -25200,
    illegalArgument = -25201,
    invalidUIElement = -25202,
    invalidUIElementObserver = -25203,
    cannotComplete = -25204,
    attributeUnsupported = -25205,
    actionUnsupported = -25206,
    notificationUnsupported = -25207,
    notImplemented = -25208,
    notificationAlreadyRegistered = -25209,
    notificationNotRegistered = -25210,
    apiDisabled = -25211,
    noValue = -25212,
    parameterizedAttributeUnsupported = -25213,
    notEnoughPrecision = -25214,
};

// An attribute value of any type the agent reads or writes. `Other` stands for a value
// of a type the agent never interprets (it reads as "nothing" everywhere). Points, sizes
// and rectangles are AXValue-wrapped CGPoint, CGSize and CGRect on macOS.
struct AXOther {
    friend bool operator==(const AXOther&, const AXOther&) = default;
};

using AXValue = std::variant<std::monostate, bool, std::int64_t, double, std::string, AXElement,
                             std::vector<AXElement>, Point, Size, Rect, AXOther>;

}  // namespace vistrel
