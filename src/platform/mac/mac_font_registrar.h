#pragma once

#include "platform/font_registrar.h"

namespace vistrel {

// The main bundle's resources and Core Text's font manager, process scope.
class MacFontRegistrar : public FontRegistrar {
  public:
    std::optional<std::string> bundledResource(const std::string& name,
                                               const std::string& extension) override;
    bool registerFont(const std::string& path) override;
};

}  // namespace vistrel
