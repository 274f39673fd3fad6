#pragma once

#include "platform/info_dictionary.h"

namespace vistrel {

// Bundle.main's information dictionary.
class MacInfoDictionary : public InfoDictionary {
  public:
    std::optional<std::string> string(const std::string& key) override;
};

}  // namespace vistrel
