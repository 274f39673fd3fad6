#include "layouts/layout_undo.h"

#include <cstdint>
#include <memory>

#include "platform/platform.h"
#include "tracking/ax.h"
#include "windows/window_attribute.h"
#include "windows/window_mover.h"

namespace vistrel {

namespace {

std::string windows(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " window" : " windows");
}

}  // namespace

std::string LayoutUndo::Outcome::message() const {
    std::string text = "Put back " + windows(moved.size());
    if (closed > 0) text += " · " + std::to_string(closed) + " closed since";
    return text;
}

LayoutUndo& LayoutUndo::shared() {
    // Made anew when a different platform is installed (tests install one per case).
    static std::unique_ptr<LayoutUndo> instance;
    static std::uint64_t generation = 0;
    if (!instance || generation != platformGeneration()) {
        instance = std::make_unique<LayoutUndo>();
        generation = platformGeneration();
    }
    return *instance;
}

void LayoutUndo::keep(Record record) {
    if (!record.windows.empty()) record_ = std::move(record);
}

bool LayoutUndo::available() const {
    return record_ && platform().clock.now() - record_->at <= keptFor;
}

std::optional<LayoutUndo::Record> LayoutUndo::take() {
    if (!available()) return std::nullopt;
    return std::exchange(record_, std::nullopt);
}

std::vector<LayoutUndo::Window> LayoutUndo::read(const std::vector<WindowRef>& refs) {
    std::vector<Window> read;
    for (const WindowRef& ref : refs) {
        WindowAttribute::setTimeout(ref.element, WindowAttribute::actionTimeout);
        const auto frame = WindowMover::frame(ref.element);
        if (!frame) continue;
        read.push_back({ref, *frame, AX::value<bool>(ref.element, AX::minimized).value_or(false)});
    }
    return read;
}

// A window that has gone answers no frame; one that is back where it was needs no move.
LayoutUndo::Outcome LayoutUndo::putBack(const Record& record) {
    Outcome outcome;
    for (const Window& window : record.windows) {
        const AXElement& element = window.ref.element;
        WindowAttribute::setTimeout(element, WindowAttribute::actionTimeout);
        if (!WindowMover::frame(element)) {
            ++outcome.closed;
            continue;
        }
        if (!window.minimized) WindowAttribute::write(element, AX::minimized, false);
        WindowMover::setFrame(window.ref.pid, element, window.frame);
        if (window.minimized) {
            WindowAttribute::write(element, AX::minimized, true);
        } else {
            outcome.moved.push_back(window.ref);
        }
    }
    return outcome;
}

}  // namespace vistrel
