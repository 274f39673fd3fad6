#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/accessibility.h"
#include "platform/sim/sim_model.h"

namespace vistrel {

class SimDesktop;

using SimNodeId = std::uint64_t;

// The parts of a simulated window that are elements of their own.
enum class SimWindowPart { closeButton, minimizeButton, fullScreenButton, title };

// The accessibility tree of the simulated desktop. Applications, their windows and the
// windows' buttons and titles are derived from the desktop model; further elements (the
// Dock's Mission Control tree) are free nodes with stored attributes.
class SimAccessibility : public Accessibility {
  public:
    // The system's default messaging time-out, for elements the agent never set one on.
    static constexpr float defaultTimeout = 6.0f;
    // The height of a simulated title bar: hit-tests there land on the title element.
    static constexpr double titleBarHeight = 28;

    explicit SimAccessibility(SimDesktop& desktop) : desktop_(desktop) {}

    AXElement systemWide() override;
    AXElement application(Pid pid) override;
    AXError setMessagingTimeout(const AXElement& element, float seconds) override;
    // Free nodes only; other elements answer notImplemented.
    AXError attributeNames(const AXElement& element, std::vector<std::string>& names) override;
    AXError copyAttribute(const AXElement& element, std::string_view attribute,
                          AXValue& value) override;
    AXError setAttribute(const AXElement& element, std::string_view attribute,
                         const AXValue& value) override;
    AXError isSettable(const AXElement& element, std::string_view attribute,
                       bool& settable) override;
    AXError performAction(const AXElement& element, std::string_view action) override;
    AXError elementAtPosition(const AXElement& root, Point point, AXElement& hit) override;
    AXError pid(const AXElement& element, Pid& pid) override;
    bool isProcessTrusted() override;
    bool promptForTrust() override;

    // Elements of the model, as the agent would obtain them.
    AXElement windowElement(SimWindowId id);
    AXElement partElement(SimWindowId id, SimWindowPart part);

    // Free nodes: an element owned by a process with stored attributes ("AXChildren" is
    // kept as a list of elements like any other value).
    SimNodeId addNode(Pid owner, std::map<std::string, AXValue> attributes);
    AXElement nodeElement(SimNodeId id);
    void setNodeAttribute(SimNodeId id, const std::string& attribute, AXValue value);
    void removeNode(SimNodeId id);
    // Extra children an application element lists after its windows.
    std::map<Pid, std::vector<AXElement>> applicationChildren;
    // Asked first by every hit-test; a scene answers for the points it owns.
    std::function<std::optional<AXElement>(Point)> hitTestOverride;
    // Virtual seconds every hit-test takes on top of the applications' own latency.
    double hitTestLatency = 0;
    // How many hit-tests were asked for.
    std::size_t hitTests() const { return hitTests_; }
    // Called before an application element's attributes are read, so a scene can bring the
    // elements it derives from the desktop up to date (the Dock's Mission Control tree).
    std::function<void(Pid)> onApplicationRead;
    // An application that quits, as a crash would, once this many accessibility calls on
    // its elements have been made: the last of them already finds it gone.
    std::map<Pid, int> quitsAfterCalls;

    // Counts of calls, for tests that pin down how much a reader asks.
    std::size_t attributeReads() const;
    std::size_t attributeReads(const std::string& attribute) const;
    void resetCounts();
    // How many messaging time-outs were set, on any element.
    std::size_t timeoutsSet() const;
    // The time-out a call on the element waits: its own; else the one set on the
    // system-wide element, which is the default of every element without its own; else the
    // system's default. An element read from another inherits nothing: a time-out set on an
    // application element is that element's alone (AXUIElementSetMessagingTimeout).
    float messagingTimeout(const AXElement& element) const;
    // Every call that reached an application, with the time-out it waited under, while
    // `recordTimeouts` is on.
    struct TimedCall {
        Pid pid = 0;
        float timeout = 0;
        friend bool operator==(const TimedCall&, const TimedCall&) = default;
    };
    bool recordTimeouts = false;
    std::vector<TimedCall> timedCalls() const;

  private:
    struct Node {
        Pid owner = 0;
        std::map<std::string, AXValue> attributes;
    };

    // How long a call on an element takes in virtual time, and whether it times out.
    AXError enter(const AXElement& element);
    std::optional<Pid> ownerOf(const AXElement& element) const;
    AXError readApplication(Pid pid, std::string_view attribute, AXValue& value);
    AXError readWindow(const SimWindow& window, std::string_view attribute, AXValue& value);
    AXError readPart(const SimWindow& window, SimWindowPart part, std::string_view attribute,
                     AXValue& value);
    void count(std::string_view attribute);

    SimDesktop& desktop_;
    std::atomic<std::size_t> hitTests_{0};
    mutable std::mutex mutex_;
    std::unordered_map<AXElement, float> timeouts_;
    std::map<SimNodeId, Node> nodes_;
    SimNodeId nextNode_ = 1;
    std::map<std::string, std::size_t, std::less<>> reads_;
    std::size_t timeoutsSet_ = 0;
    std::vector<TimedCall> timedCalls_;
};

}  // namespace vistrel
