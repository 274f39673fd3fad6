#pragma once

#include "platform/modal_alert.h"

#ifdef __OBJC__
@class NSAlert;
#endif

namespace vistrel {

// NSAlert.runModal.
class MacModalAlert : public ModalAlert {
  public:
    std::size_t run(const AlertContent& alert) override;
};

#ifdef __OBJC__
// An alert with the content's title, text and buttons, the first one the default.
NSAlert* makeAlert(const AlertContent& content);
// Brings the agent to the front (an accessory has no Dock icon to click), runs the alert
// and answers the index of the chosen button.
std::size_t runAlert(NSAlert* alert);
#endif

}  // namespace vistrel
