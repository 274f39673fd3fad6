#include "platform/sim/sim_key_panel.h"

#include <algorithm>

namespace vistrel {

SimKeyPanel::~SimKeyPanel() {
    host_.forget(*this);
}

void SimKeyPanel::setContent(std::shared_ptr<const DisplayList> content) {
    content_ = std::move(content);
    ++contentUpdates_;
}

void SimKeyPanel::showKey() {
    for (SimKeyPanel* other : host_.panels()) {
        if (other != this && other->key_) other->resignKey();
    }
    visible_ = true;
    key_ = true;
}

void SimKeyPanel::orderOut() {
    visible_ = false;
    key_ = false;
}

void SimKeyPanel::click(Point point) {
    mouseDown(point);
    mouseUp(point);
}

void SimKeyPanel::mouseDown(Point point) {
    if (visible_ && events_.mouseDown) events_.mouseDown(point);
}

void SimKeyPanel::mouseUp(Point point) {
    if (visible_ && events_.mouseUp) events_.mouseUp(point);
}

void SimKeyPanel::moveMouse(std::optional<Point> point) {
    if (visible_ && events_.mouseMoved) events_.mouseMoved(point);
}

void SimKeyPanel::scroll(Point point, double deltaY, bool precise) {
    if (visible_ && events_.scrolled) events_.scrolled(point, deltaY, precise);
}

void SimKeyPanel::pressEscape() {
    if (key_ && events_.escape) events_.escape();
}

bool SimKeyPanel::pressKey(std::int64_t keyCode, std::uint64_t modifierFlags) {
    return key_ && events_.keyDown && events_.keyDown(keyCode, modifierFlags);
}

void SimKeyPanel::resignKey() {
    if (!key_) return;
    key_ = false;
    if (events_.resignedKey) events_.resignedKey();
}

std::unique_ptr<KeyPanel> SimKeyPanelHost::makePanel() {
    if (failPanels) return nullptr;
    auto panel = std::make_unique<SimKeyPanel>(*this);
    panels_.push_back(panel.get());
    return panel;
}

SimKeyPanel* SimKeyPanelHost::keyPanel() const {
    const auto found =
        std::find_if(panels_.begin(), panels_.end(), [](SimKeyPanel* p) { return p->isKey(); });
    return found == panels_.end() ? nullptr : *found;
}

void SimKeyPanelHost::forget(const SimKeyPanel& panel) {
    std::erase(panels_, &panel);
}

}  // namespace vistrel
