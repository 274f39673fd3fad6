#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/info_dictionary.h"

namespace vistrel {

// The simulated bundle's information dictionary: the values the build was configured
// with, as the macOS build writes them into Info.plist.
class SimInfoDictionary : public InfoDictionary {
  public:
    SimInfoDictionary();
    std::optional<std::string> string(const std::string& key) override;

    std::map<std::string, std::string> values;
};

}  // namespace vistrel
