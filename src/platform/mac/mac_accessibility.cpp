#include "platform/mac/mac_accessibility.h"

#include "platform/mac/cf_owned.h"

#include <memory>
#include <string>
#include <vector>

namespace vistrel {

namespace {

CFOwned<CFStringRef> makeString(std::string_view text) {
    return CFOwned<CFStringRef>(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                                static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

AXUIElementRef refOf(const AXElement& element) {
    const auto* handle = dynamic_cast<const MacAXElementHandle*>(element.handle());
    return handle != nullptr ? handle->element() : nullptr;
}

// Wraps an element the caller owns one reference to.
AXElement adopt(AXUIElementRef element) {
    return AXElement(std::make_shared<MacAXElementHandle>(element));
}

// Wraps an element owned by a container, taking a reference of our own.
AXElement retain(AXUIElementRef element) {
    CFRetain(element);
    return adopt(element);
}

AXError toError(::AXError error) {
    return static_cast<AXError>(error);
}

AXValue fromAXValue(AXValueRef value) {
    switch (AXValueGetType(value)) {
        case kAXValueTypeCGPoint: {
            CGPoint p;
            if (AXValueGetValue(value, kAXValueTypeCGPoint, &p)) return Point{p.x, p.y};
            break;
        }
        case kAXValueTypeCGSize: {
            CGSize s;
            if (AXValueGetValue(value, kAXValueTypeCGSize, &s)) return Size{s.width, s.height};
            break;
        }
        case kAXValueTypeCGRect: {
            CGRect r;
            if (AXValueGetValue(value, kAXValueTypeCGRect, &r)) {
                return Rect{r.origin.x, r.origin.y, r.size.width, r.size.height};
            }
            break;
        }
        default:
            break;
    }
    return AXOther{};
}

AXValue fromArray(CFArrayRef array) {
    std::vector<AXElement> elements;
    const CFIndex count = CFArrayGetCount(array);
    for (CFIndex i = 0; i < count; ++i) {
        CFTypeRef item = CFArrayGetValueAtIndex(array, i);
        if (item == nullptr || CFGetTypeID(item) != AXUIElementGetTypeID()) return AXOther{};
        elements.push_back(retain(static_cast<AXUIElementRef>(item)));
    }
    return elements;
}

AXValue fromNumber(CFNumberRef number) {
    if (CFNumberIsFloatType(number)) {
        double value = 0;
        CFNumberGetValue(number, kCFNumberDoubleType, &value);
        return value;
    }
    std::int64_t value = 0;
    CFNumberGetValue(number, kCFNumberSInt64Type, &value);
    return value;
}

// Converts a copied attribute value; kinds the agent never interprets become AXOther.
AXValue fromCF(CFTypeRef value) {
    const CFTypeID type = CFGetTypeID(value);
    if (type == CFStringGetTypeID())
        return textOf(static_cast<CFStringRef>(value)).value_or(std::string());
    if (type == CFBooleanGetTypeID())
        return CFBooleanGetValue(static_cast<CFBooleanRef>(value)) != 0;
    if (type == CFNumberGetTypeID()) return fromNumber(static_cast<CFNumberRef>(value));
    if (type == AXUIElementGetTypeID()) return retain(static_cast<AXUIElementRef>(value));
    if (type == CFArrayGetTypeID()) return fromArray(static_cast<CFArrayRef>(value));
    if (type == AXValueGetTypeID()) return fromAXValue(static_cast<AXValueRef>(value));
    return AXOther{};
}

// The Core Foundation form of a value to write; null for kinds that cannot be written.
CFOwned<CFTypeRef> toCF(const AXValue& value) {
    if (const bool* b = std::get_if<bool>(&value)) {
        return CFOwned<CFTypeRef>(CFRetain(*b ? kCFBooleanTrue : kCFBooleanFalse));
    }
    if (const std::int64_t* i = std::get_if<std::int64_t>(&value)) {
        return CFOwned<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, i));
    }
    if (const double* d = std::get_if<double>(&value)) {
        return CFOwned<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, d));
    }
    if (const std::string* s = std::get_if<std::string>(&value)) {
        return CFOwned<CFTypeRef>(makeString(*s).release());
    }
    if (const Point* p = std::get_if<Point>(&value)) {
        const CGPoint point = CGPointMake(p->x, p->y);
        return CFOwned<CFTypeRef>(AXValueCreate(kAXValueTypeCGPoint, &point));
    }
    if (const Size* s = std::get_if<Size>(&value)) {
        const CGSize size = CGSizeMake(s->width, s->height);
        return CFOwned<CFTypeRef>(AXValueCreate(kAXValueTypeCGSize, &size));
    }
    if (const AXElement* e = std::get_if<AXElement>(&value); e && refOf(*e)) {
        return CFOwned<CFTypeRef>(CFRetain(refOf(*e)));
    }
    return nullptr;
}

}  // namespace

bool MacAXElementHandle::equals(const AXElementHandle& other) const {
    const auto* mac = dynamic_cast<const MacAXElementHandle*>(&other);
    return mac != nullptr && CFEqual(element_, mac->element_);
}

AXElement MacAccessibility::systemWide() {
    return adopt(AXUIElementCreateSystemWide());
}

AXElement MacAccessibility::application(Pid pid) {
    return adopt(AXUIElementCreateApplication(pid));
}

AXError MacAccessibility::setMessagingTimeout(const AXElement& element, float seconds) {
    AXUIElementRef ref = refOf(element);
    if (ref == nullptr) return AXError::illegalArgument;
    return toError(AXUIElementSetMessagingTimeout(ref, seconds));
}

AXError MacAccessibility::copyAttribute(const AXElement& element, std::string_view attribute,
                                        AXValue& value) {
    AXUIElementRef ref = refOf(element);
    const auto name = makeString(attribute);
    if (ref == nullptr || !name) return AXError::illegalArgument;
    CFTypeRef copied = nullptr;
    const ::AXError error = AXUIElementCopyAttributeValue(ref, name.get(), &copied);
    const CFOwned<CFTypeRef> owned(copied);
    if (error != kAXErrorSuccess) return toError(error);
    if (copied == nullptr) return AXError::noValue;
    value = fromCF(copied);
    return AXError::success;
}

AXError MacAccessibility::attributeNames(const AXElement& element,
                                         std::vector<std::string>& names) {
    AXUIElementRef ref = refOf(element);
    if (ref == nullptr) return AXError::illegalArgument;
    CFArrayRef copied = nullptr;
    const ::AXError error = AXUIElementCopyAttributeNames(ref, &copied);
    const CFOwned<CFArrayRef> owned(copied);
    if (error != kAXErrorSuccess) return toError(error);
    if (copied == nullptr) return AXError::noValue;
    names.clear();
    const CFIndex count = CFArrayGetCount(copied);
    for (CFIndex i = 0; i < count; ++i) {
        const auto item = static_cast<CFTypeRef>(CFArrayGetValueAtIndex(copied, i));
        if (item == nullptr || CFGetTypeID(item) != CFStringGetTypeID()) continue;
        if (auto name = textOf(static_cast<CFStringRef>(item))) names.push_back(std::move(*name));
    }
    return AXError::success;
}

AXError MacAccessibility::setAttribute(const AXElement& element, std::string_view attribute,
                                       const AXValue& value) {
    AXUIElementRef ref = refOf(element);
    const auto name = makeString(attribute);
    const auto converted = toCF(value);
    if (ref == nullptr || !name || !converted) return AXError::illegalArgument;
    return toError(AXUIElementSetAttributeValue(ref, name.get(), converted.get()));
}

AXError MacAccessibility::isSettable(const AXElement& element, std::string_view attribute,
                                     bool& settable) {
    AXUIElementRef ref = refOf(element);
    const auto name = makeString(attribute);
    if (ref == nullptr || !name) return AXError::illegalArgument;
    Boolean answer = false;
    const ::AXError error = AXUIElementIsAttributeSettable(ref, name.get(), &answer);
    settable = error == kAXErrorSuccess && answer;
    return toError(error);
}

AXError MacAccessibility::performAction(const AXElement& element, std::string_view action) {
    AXUIElementRef ref = refOf(element);
    const auto name = makeString(action);
    if (ref == nullptr || !name) return AXError::illegalArgument;
    return toError(AXUIElementPerformAction(ref, name.get()));
}

AXError MacAccessibility::elementAtPosition(const AXElement& root, Point point, AXElement& hit) {
    AXUIElementRef ref = refOf(root);
    if (ref == nullptr) return AXError::illegalArgument;
    AXUIElementRef found = nullptr;
    const ::AXError error = AXUIElementCopyElementAtPosition(ref, static_cast<float>(point.x),
                                                             static_cast<float>(point.y), &found);
    if (error != kAXErrorSuccess) {
        if (found != nullptr) CFRelease(found);
        return toError(error);
    }
    if (found == nullptr) return AXError::noValue;
    hit = adopt(found);
    return AXError::success;
}

AXError MacAccessibility::pid(const AXElement& element, Pid& pid) {
    AXUIElementRef ref = refOf(element);
    if (ref == nullptr) return AXError::illegalArgument;
    pid_t owner = 0;
    const ::AXError error = AXUIElementGetPid(ref, &owner);
    if (error == kAXErrorSuccess) pid = owner;
    return toError(error);
}

bool MacAccessibility::isProcessTrusted() {
    return AXIsProcessTrusted();
}

bool MacAccessibility::promptForTrust() {
    const void* keys[] = {kAXTrustedCheckOptionPrompt};
    const void* values[] = {kCFBooleanTrue};
    const CFOwned<CFDictionaryRef> options(CFDictionaryCreate(kCFAllocatorDefault, keys, values, 1,
                                                              &kCFTypeDictionaryKeyCallBacks,
                                                              &kCFTypeDictionaryValueCallBacks));
    return AXIsProcessTrustedWithOptions(options.get());
}

}  // namespace vistrel
