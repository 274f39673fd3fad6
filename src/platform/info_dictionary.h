#pragma once

#include <optional>
#include <string>

namespace vistrel {

// The main bundle's information dictionary (Info.plist), where the build puts the values
// fixed at configure time.
class InfoDictionary {
  public:
    virtual ~InfoDictionary() = default;
    // Bundle.main.object(forInfoDictionaryKey:) as text; nothing when the key is missing or
    // its value is not text.
    virtual std::optional<std::string> string(const std::string& key) = 0;
};

}  // namespace vistrel
