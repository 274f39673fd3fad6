#pragma once

#include <string>

namespace vistrel {

// The general pasteboard, for text the user copies: NSPasteboard.generalPasteboard's
// clearContents, then setString:forType: with NSPasteboardTypeString. False when the
// pasteboard did not take the text.
class Pasteboard {
  public:
    virtual ~Pasteboard() = default;
    virtual bool copyText(const std::string& text) = 0;
};

}  // namespace vistrel
