#pragma once

#include "platform/modal_alert.h"

#ifdef __OBJC__
@class NSAlert;
#endif

namespace vistrel {

// NSAlert.runModal.
class MacModalAlert : public ModalAlert {
  public:
    std::optional<std::size_t> run(const AlertContent& alert) override;
    Answer runWithCheckbox(const AlertContent& alert, const std::string& checkbox) override;
};

// An accessory agent has no Dock icon to click: it comes to the front itself before it
// shows a modal window, or the window would open behind the user's work.
void bringAgentForward();

#ifdef __OBJC__
// An alert with the content's title, text and buttons, the first one the default.
NSAlert* makeAlert(const AlertContent& content);
// Brings the agent forward, runs the alert and answers the index of the chosen button;
// nothing when the alert ended without one.
std::optional<std::size_t> runAlert(NSAlert* alert);
#endif

}  // namespace vistrel
