#pragma once

#include "platform/updater.h"

namespace vistrel {

// Sparkle's SPUUpdater with its standard user driver, for the main bundle.
class MacUpdateService : public UpdateService {
  public:
    std::unique_ptr<Updater> makeUpdater() override;
};

}  // namespace vistrel
