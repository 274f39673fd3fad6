#pragma once

#include <ApplicationServices/ApplicationServices.h>

#include "platform/accessibility.h"

namespace vistrel {

// An accessibility element of the real system: a retained AXUIElementRef, compared with
// CFEqual and hashed with CFHash so that elements obtained separately still match.
class MacAXElementHandle : public AXElementHandle {
  public:
    // Takes over one reference (the create rule).
    explicit MacAXElementHandle(AXUIElementRef element) : element_(element) {}
    ~MacAXElementHandle() override { CFRelease(element_); }
    MacAXElementHandle(const MacAXElementHandle&) = delete;
    MacAXElementHandle& operator=(const MacAXElementHandle&) = delete;

    bool equals(const AXElementHandle& other) const override;
    std::size_t hash() const override { return static_cast<std::size_t>(CFHash(element_)); }
    AXUIElementRef element() const { return element_; }

  private:
    AXUIElementRef element_;
};

// The Accessibility interface over HIServices' AXUIElement functions.
class MacAccessibility : public Accessibility {
  public:
    AXElement systemWide() override;
    AXElement application(Pid pid) override;
    AXError setMessagingTimeout(const AXElement& element, float seconds) override;
    AXError attributeNames(const AXElement& element, std::vector<std::string>& names) override;
    AXError copyAttribute(const AXElement& element, std::string_view attribute,
                          AXValue& value) override;
    AXError setAttribute(const AXElement& element, std::string_view attribute,
                         const AXValue& value) override;
    AXError isSettable(const AXElement& element, std::string_view attribute,
                       bool& settable) override;
    AXError performAction(const AXElement& element, std::string_view action) override;
    AXError elementAtPosition(const AXElement& root, Point point, AXElement& hit) override;
    AXError pid(const AXElement& element, Pid& pid) override;
    bool isProcessTrusted() override;
    bool promptForTrust() override;
};

}  // namespace vistrel
