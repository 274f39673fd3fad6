#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/font_registrar.h"

namespace vistrel {

// The simulated bundle's resources and the fonts registered in the simulated process. Every
// resource asked for is there unless a test says it is missing.
class SimFontRegistrar : public FontRegistrar {
  public:
    explicit SimFontRegistrar(std::string bundlePath) : bundlePath_(std::move(bundlePath)) {}

    std::optional<std::string> bundledResource(const std::string& name,
                                               const std::string& extension) override;
    bool registerFont(const std::string& path) override;

    // Faults: resources missing from the bundle ("Name.ext"), font files the system refuses.
    std::set<std::string> missingResources;
    std::set<std::string> refusedFonts;

    // Every file registered, in order.
    const std::vector<std::string>& registered() const { return registered_; }
    int lookups() const { return lookups_; }

  private:
    std::string bundlePath_;
    std::vector<std::string> registered_;
    int lookups_ = 0;
};

}  // namespace vistrel
