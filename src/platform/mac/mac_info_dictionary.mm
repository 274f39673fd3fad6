#include "platform/mac/mac_info_dictionary.h"

#include "platform/mac/mac_strings.h"

namespace vistrel {

std::optional<std::string> MacInfoDictionary::string(const std::string& key) {
    return utf8Text([NSBundle.mainBundle objectForInfoDictionaryKey:nsString(key)]);
}

}  // namespace vistrel
