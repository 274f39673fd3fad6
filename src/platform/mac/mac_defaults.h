#pragma once

#include "platform/defaults.h"

namespace vistrel {

// NSUserDefaults: the standard defaults and named suites.
class MacDefaults : public Defaults {
  public:
    std::shared_ptr<DefaultsStore> standard() override;
    std::shared_ptr<DefaultsStore> suite(const std::string& name) override;
};

}  // namespace vistrel
