#include "settings/shared.h"

#include "platform/platform.h"

namespace vistrel {

std::shared_ptr<DefaultsStore> Shared::store() {
    Platform& p = platform();
    if (p.workspace.mainBundle().identifier == domain) return p.defaults.standard();
    if (auto suite = p.defaults.suite(std::string(domain))) return suite;
    return p.defaults.standard();
}

std::string Shared::Key::hotkeyDisabled(Hotkey hotkey) {
    return "hotkey." + std::string(name(hotkey)) + ".disabled";
}

}  // namespace vistrel
