#include "platform/mac/mac_info_dictionary.h"

#include "platform/mac/mac_strings.h"

namespace vistrel {

std::optional<std::string> MacInfoDictionary::string(const std::string& key) {
    id value = [NSBundle.mainBundle objectForInfoDictionaryKey:nsString(key)];
    if (![value isKindOfClass:[NSString class]]) return std::nullopt;
    return utf8(value);
}

}  // namespace vistrel
