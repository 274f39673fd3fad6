#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ax_value.h"
#include "platform/geometry.h"
#include "platform/process.h"

namespace vistrel {

// The calls of the macOS Accessibility interface (AXUIElement and AXIsProcessTrusted*).
// Every call may be made from any thread. Calls on an element give up after that element's
// messaging time-out and answer AXError::cannotComplete.
class Accessibility {
  public:
    virtual ~Accessibility() = default;

    // AXUIElementCreateSystemWide.
    virtual AXElement systemWide() = 0;
    // AXUIElementCreateApplication.
    virtual AXElement application(Pid pid) = 0;
    // AXUIElementSetMessagingTimeout (seconds, a 32-bit float on macOS).
    virtual AXError setMessagingTimeout(const AXElement& element, float seconds) = 0;
    // AXUIElementCopyAttributeValue; `value` is set only on success.
    virtual AXError copyAttribute(const AXElement& element, std::string_view attribute,
                                  AXValue& value) = 0;
    // AXUIElementCopyAttributeNames: every attribute the element supports; `names` is set
    // only on success.
    virtual AXError attributeNames(const AXElement& element, std::vector<std::string>& names) = 0;
    // AXUIElementSetAttributeValue.
    virtual AXError setAttribute(const AXElement& element, std::string_view attribute,
                                 const AXValue& value) = 0;
    // AXUIElementIsAttributeSettable.
    virtual AXError isSettable(const AXElement& element, std::string_view attribute,
                               bool& settable) = 0;
    // AXUIElementPerformAction.
    virtual AXError performAction(const AXElement& element, std::string_view action) = 0;
    // AXUIElementCopyElementAtPosition, asked of `root` (usually the system-wide element).
    virtual AXError elementAtPosition(const AXElement& root, Point point, AXElement& hit) = 0;
    // AXUIElementGetPid.
    virtual AXError pid(const AXElement& element, Pid& pid) = 0;
    // AXIsProcessTrusted.
    virtual bool isProcessTrusted() = 0;
    // AXIsProcessTrustedWithOptions with kAXTrustedCheckOptionPrompt = true: shows the
    // system's prompt when the process is not trusted.
    virtual bool promptForTrust() = 0;
};

}  // namespace vistrel
