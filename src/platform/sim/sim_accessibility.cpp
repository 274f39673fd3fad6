#include "platform/sim/sim_accessibility.h"

#include <algorithm>

#include "platform/sim/sim_application_attribute.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_window_attribute.h"
#include "platform/sim/sim_window_part.h"

namespace vistrel {

namespace {

enum class Kind { systemWide, application, window, part, node };

// The identity of a simulated element: which kind, which process, which window or node.
struct SimHandle : AXElementHandle {
    SimHandle(Kind kind, Pid pid, std::uint64_t id, int part = 0)
        : kind(kind), pid(pid), id(id), part(part) {}

    bool equals(const AXElementHandle& other) const override {
        const auto* o = dynamic_cast<const SimHandle*>(&other);
        return o != nullptr && o->kind == kind && o->pid == pid && o->id == id && o->part == part;
    }
    std::size_t hash() const override {
        std::size_t h = std::hash<std::uint64_t>{}(id);
        h ^= std::hash<int>{}(pid) + 0x9e3779b9 + (h << 6) + (h >> 2);
        return h ^ (static_cast<std::size_t>(kind) << 8) ^ static_cast<std::size_t>(part);
    }

    Kind kind;
    Pid pid;
    std::uint64_t id;
    int part;
};

const SimHandle* handleOf(const AXElement& element) {
    return dynamic_cast<const SimHandle*>(element.handle());
}

AXElement make(Kind kind, Pid pid, std::uint64_t id, int part = 0) {
    return AXElement(std::make_shared<SimHandle>(kind, pid, id, part));
}

constexpr std::string_view pressAction = "AXPress";
constexpr std::string_view raiseAction = "AXRaise";

}  // namespace

AXElement SimAccessibility::systemWide() {
    return make(Kind::systemWide, 0, 0);
}

AXElement SimAccessibility::application(Pid pid) {
    return make(Kind::application, pid, 0);
}

AXElement SimAccessibility::windowElement(SimWindowId id) {
    const SimWindow* window = desktop_.window(id);
    return make(Kind::window, window ? window->pid : 0, id);
}

AXElement SimAccessibility::partElement(SimWindowId id, SimWindowPart part) {
    const SimWindow* window = desktop_.window(id);
    return make(Kind::part, window ? window->pid : 0, id, static_cast<int>(part) + 1);
}

SimNodeId SimAccessibility::addNode(Pid owner, std::map<std::string, AXValue> attributes) {
    std::lock_guard lock(mutex_);
    const SimNodeId id = nextNode_++;
    nodes_[id] = Node{owner, std::move(attributes)};
    return id;
}

AXElement SimAccessibility::nodeElement(SimNodeId id) {
    std::lock_guard lock(mutex_);
    auto found = nodes_.find(id);
    return make(Kind::node, found == nodes_.end() ? 0 : found->second.owner, id);
}

void SimAccessibility::setNodeAttribute(SimNodeId id, const std::string& attribute, AXValue value) {
    std::lock_guard lock(mutex_);
    auto found = nodes_.find(id);
    if (found != nodes_.end()) found->second.attributes[attribute] = std::move(value);
}

void SimAccessibility::removeNode(SimNodeId id) {
    std::lock_guard lock(mutex_);
    nodes_.erase(id);
}

std::size_t SimAccessibility::attributeReads() const {
    std::lock_guard lock(mutex_);
    std::size_t total = 0;
    for (const auto& [name, n] : reads_)
        total += n;
    return total;
}

std::size_t SimAccessibility::attributeReads(const std::string& attribute) const {
    std::lock_guard lock(mutex_);
    auto found = reads_.find(attribute);
    return found == reads_.end() ? 0 : found->second;
}

void SimAccessibility::resetCounts() {
    std::lock_guard lock(mutex_);
    reads_.clear();
}

void SimAccessibility::count(std::string_view attribute) {
    std::lock_guard lock(mutex_);
    auto found = reads_.find(attribute);
    if (found == reads_.end()) {
        reads_.emplace(std::string(attribute), 1);
    } else {
        ++found->second;
    }
}

std::size_t SimAccessibility::timeoutsSet() const {
    std::lock_guard lock(mutex_);
    return timeoutsSet_;
}

std::vector<SimAccessibility::TimedCall> SimAccessibility::timedCalls() const {
    std::lock_guard lock(mutex_);
    return timedCalls_;
}

float SimAccessibility::messagingTimeout(const AXElement& element) const {
    std::lock_guard lock(mutex_);
    const AXElement candidates[] = {element, make(Kind::systemWide, 0, 0)};
    for (const AXElement& candidate : candidates) {
        auto found = timeouts_.find(candidate);
        if (found != timeouts_.end()) return found->second;
    }
    return defaultTimeout;
}

AXError SimAccessibility::setMessagingTimeout(const AXElement& element, float seconds) {
    if (!element || seconds < 0) return AXError::illegalArgument;
    std::lock_guard lock(mutex_);
    timeouts_[element] = seconds;
    ++timeoutsSet_;
    return AXError::success;
}

std::optional<Pid> SimAccessibility::ownerOf(const AXElement& element) const {
    const SimHandle* handle = handleOf(element);
    if (handle == nullptr || handle->kind == Kind::systemWide) return std::nullopt;
    return handle->pid;
}

AXError SimAccessibility::enter(const AXElement& element) {
    if (!desktop_.trusted) return AXError::apiDisabled;
    if (desktop_.staleGrant) return *desktop_.staleGrant;
    if (handleOf(element) == nullptr) return AXError::illegalArgument;
    const auto owner = ownerOf(element);
    const SimApplication* app = owner ? desktop_.application(*owner) : nullptr;
    if (app == nullptr) return owner ? AXError::invalidUIElement : AXError::success;
    if (recordTimeouts) {
        const float timeout = messagingTimeout(element);
        std::lock_guard lock(mutex_);
        timedCalls_.push_back({app->pid, timeout});
    }
    if (app->hung) {
        desktop_.clock().sleep(messagingTimeout(element));
        return AXError::cannotComplete;
    }
    desktop_.clock().sleep(app->accessibilityLatency);
    if (auto left = quitsAfterCalls.find(app->pid);
        left != quitsAfterCalls.end() && --left->second <= 0) {
        quitsAfterCalls.erase(left);
        desktop_.workspace().forceTerminate(app->pid);
    }
    return app->terminated ? AXError::invalidUIElement : AXError::success;
}

AXError SimAccessibility::copyAttribute(const AXElement& element, std::string_view attribute,
                                        AXValue& value) {
    count(attribute);
    if (const AXError entered = enter(element); entered != AXError::success) return entered;
    const SimHandle& handle = *handleOf(element);
    switch (handle.kind) {
        case Kind::systemWide:
            return AXError::noValue;
        case Kind::application:
            return readApplication(handle.pid, attribute, value);
        case Kind::node: {
            std::lock_guard lock(mutex_);
            auto node = nodes_.find(handle.id);
            if (node == nodes_.end()) return AXError::invalidUIElement;
            auto found = node->second.attributes.find(std::string(attribute));
            if (found == node->second.attributes.end()) return AXError::noValue;
            value = found->second;
            return AXError::success;
        }
        case Kind::window:
        case Kind::part:
            break;
    }
    const SimWindow* window = desktop_.window(handle.id);
    if (window == nullptr || window->closed) return AXError::invalidUIElement;
    if (handle.kind == Kind::window) return readWindow(*window, attribute, value);
    return readPart(*window, static_cast<SimWindowPart>(handle.part - 1), attribute, value);
}

// A free node lists the attributes it stores; elements derived from the desktop list none.
AXError SimAccessibility::attributeNames(const AXElement& element,
                                         std::vector<std::string>& names) {
    if (const SimHandle* handle = handleOf(element); handle && handle->kind == Kind::node) {
        if (const AXError entered = enter(element); entered != AXError::success) return entered;
        std::lock_guard lock(mutex_);
        const auto node = nodes_.find(handle->id);
        if (node == nodes_.end()) return AXError::invalidUIElement;
        names.clear();
        for (const auto& entry : node->second.attributes)
            names.push_back(entry.first);
        return AXError::success;
    }
    return AXError::notImplemented;
}

AXError SimAccessibility::readApplication(Pid pid, std::string_view attribute, AXValue& value) {
    if (onApplicationRead) onApplicationRead(pid);
    desktop_.installations().settle();
    const SimApplication* app = desktop_.application(pid);
    std::vector<AXElement> windows;
    for (SimWindowId id : desktop_.windowsOf(pid))
        windows.push_back(windowElement(id));
    if (attribute == "AXRole") {
        value = std::string("AXApplication");
    } else if (attribute == "AXTitle") {
        value = app->name;
    } else if (attribute == "AXWindows") {
        value = windows;
    } else if (attribute == "AXChildren") {
        auto extra = applicationChildren.find(pid);
        if (extra != applicationChildren.end()) {
            windows.insert(windows.end(), extra->second.begin(), extra->second.end());
        }
        value = windows;
    } else if (attribute == "AXEnhancedUserInterface") {
        value = app->enhancedUserInterface;
    } else {
        return AXError::noValue;
    }
    return AXError::success;
}

AXError SimAccessibility::readWindow(const SimWindow& window, std::string_view attribute,
                                     AXValue& value) {
    const std::pair<std::string_view, SimWindowPart> buttons[] = {
        {"AXCloseButton", SimWindowPart::closeButton},
        {"AXMinimizeButton", SimWindowPart::minimizeButton},
        {"AXFullScreenButton", SimWindowPart::fullScreenButton}};
    for (const auto& [name, part] : buttons) {
        if (attribute != name) continue;
        if (!hasPart(window, part)) return AXError::noValue;
        value = partElement(window.id, part);
        return AXError::success;
    }
    if (attribute == "AXRole") {
        value = std::string("AXWindow");
    } else if (attribute == "AXSubrole") {
        value = window.subrole;
    } else if (attribute == "AXTitle") {
        value = window.title;
    } else if (attribute == "AXFrame") {
        value = window.frame;
    } else if (attribute == "AXPosition") {
        value = window.frame.origin();
    } else if (attribute == "AXSize") {
        value = window.frame.size();
    } else if (attribute == "AXMinimized") {
        value = window.minimized;
    } else if (attribute == "AXFullScreen") {
        value = window.fullScreen;
    } else if (attribute == "AXWindow") {
        value = windowElement(window.id);
    } else if (auto document = exposedDocument(desktop_, window);
               attribute == "AXDocument" && document) {
        value = *document;
    } else {
        return AXError::noValue;
    }
    return AXError::success;
}

AXError SimAccessibility::readPart(const SimWindow& window, SimWindowPart part,
                                   std::string_view attribute, AXValue& value) {
    if (!hasPart(window, part)) return AXError::invalidUIElement;
    if (attribute == "AXRole") {
        value = std::string(part == SimWindowPart::title ? "AXStaticText" : "AXButton");
    } else if (attribute == "AXSubrole" && part != SimWindowPart::title) {
        value = std::string(subroleOf(part));
    } else if (attribute == "AXValue" && part == SimWindowPart::title) {
        value = window.title;
    } else if (attribute == "AXWindow") {
        value = windowElement(window.id);
    } else {
        return AXError::noValue;
    }
    return AXError::success;
}

AXError SimAccessibility::setAttribute(const AXElement& element, std::string_view attribute,
                                       const AXValue& value) {
    if (const AXError entered = enter(element); entered != AXError::success) return entered;
    const SimHandle& handle = *handleOf(element);
    if (handle.kind == Kind::application) {
        return writeApplicationAttribute(desktop_, handle.pid, attribute, value);
    }
    if (handle.kind != Kind::window) return AXError::attributeUnsupported;
    SimWindow* window = desktop_.window(handle.id);
    if (window == nullptr || window->closed) return AXError::invalidUIElement;
    return writeWindowAttribute(*window, attribute, value);
}

AXError SimAccessibility::isSettable(const AXElement& element, std::string_view attribute,
                                     bool& settable) {
    if (const AXError entered = enter(element); entered != AXError::success) return entered;
    const SimHandle& handle = *handleOf(element);
    settable = false;
    if (handle.kind == Kind::application) {
        settable = attribute == "AXEnhancedUserInterface";
        return AXError::success;
    }
    if (handle.kind != Kind::window) return AXError::success;
    const SimWindow* window = desktop_.window(handle.id);
    if (window == nullptr || window->closed) return AXError::invalidUIElement;
    if (attribute == "AXMinimized") settable = window->minimizedSettable;
    if (attribute == "AXFullScreen") settable = window->fullScreenSettable;
    if (attribute == "AXSize") settable = window->sizeSettable;
    if (attribute == "AXPosition") settable = window->positionSettable;
    return AXError::success;
}

AXError SimAccessibility::performAction(const AXElement& element, std::string_view action) {
    if (const AXError entered = enter(element); entered != AXError::success) return entered;
    const SimHandle& handle = *handleOf(element);
    if (handle.kind != Kind::window && handle.kind != Kind::part) return AXError::actionUnsupported;
    SimWindow* window = desktop_.window(handle.id);
    if (window == nullptr || window->closed) return AXError::invalidUIElement;
    if (handle.kind == Kind::window) {
        if (action != raiseAction) return AXError::actionUnsupported;
        desktop_.bringToFront(window->id);
        return AXError::success;
    }
    if (action != pressAction) return AXError::actionUnsupported;
    return pressWindowPart(desktop_, *window, static_cast<SimWindowPart>(handle.part - 1));
}

AXError SimAccessibility::elementAtPosition(const AXElement& root, Point point, AXElement& hit) {
    ++hitTests_;
    desktop_.clock().sleep(hitTestLatency);
    if (!desktop_.trusted) return AXError::apiDisabled;
    if (desktop_.staleGrant) return *desktop_.staleGrant;
    const SimHandle* handle = handleOf(root);
    if (handle == nullptr || handle->kind != Kind::systemWide) return AXError::illegalArgument;
    if (hitTestOverride) {
        if (auto element = hitTestOverride(point)) {
            hit = *element;
            return AXError::success;
        }
    }
    const auto id = desktop_.windowAt(point);
    if (!id) return AXError::noValue;
    const SimApplication* app = desktop_.application(desktop_.window(*id)->pid);
    if (app != nullptr && app->hung) {
        desktop_.clock().sleep(messagingTimeout(root));
        return AXError::cannotComplete;
    }
    if (app != nullptr) desktop_.clock().sleep(app->accessibilityLatency);
    const SimWindow& window = *desktop_.window(*id);
    const bool inTitleBar = point.y < window.frame.minY() + titleBarHeight;
    hit = inTitleBar ? partElement(*id, SimWindowPart::title) : windowElement(*id);
    return AXError::success;
}

AXError SimAccessibility::pid(const AXElement& element, Pid& pid) {
    if (handleOf(element) == nullptr) return AXError::illegalArgument;
    pid = ownerOf(element).value_or(0);
    return AXError::success;
}

bool SimAccessibility::isProcessTrusted() {
    return desktop_.trusted;
}

bool SimAccessibility::promptForTrust() {
    ++desktop_.trustPrompts;
    return desktop_.trusted;
}

}  // namespace vistrel
