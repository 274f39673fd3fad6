#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vistrel {

// The Layouts feature addressed by a layout's name, as scripts address it through a URL or
// the command line: restore the first saved layout of that exact name, save the current
// windows under a name, list the names, undo the last change. Each request writes its log
// lines (saying where it came from, `from`), does its work through LayoutActions and
// completes on the main thread with what happened. Main thread only.
struct LayoutRequests {
    struct Outcome {
        bool ok = false;
        // One line for the one who asked: what was done, or why nothing was.
        std::string message;

        friend bool operator==(const Outcome&, const Outcome&) = default;
    };
    using Done = std::function<void(Outcome)>;

    // Why a name cannot name a layout: empty, not UTF-8, or holding a control character
    // (which would break the log's lines and the listing's); nothing when it can.
    static std::optional<std::string> nameProblem(std::string_view name);

    // Why a request for a layout of that name cannot be carried out: the name's problem, or
    // no Accessibility grant; nothing when it can.
    static std::optional<std::string> problem(std::string_view name);
    // The one log line of a request refused: "layouts: refused a request <from>: <reason>".
    static void logRefusal(std::string_view from, const std::string& reason);

    // The saved layouts' names, in their order.
    static std::vector<std::string> names();
    // Restores the first saved layout named exactly `name`; fails when there is none or none
    // of its windows are open.
    static void apply(const std::string& name, std::string_view from, Done done);
    // Saves the current windows as a layout named `name`. When a layout of that name is
    // saved already, the first one is replaced where it stands, keeping its place on the
    // shelf and in the menu; otherwise the new layout goes at the end.
    static void save(const std::string& name, std::string_view from, Done done);
    // Puts back what the last restore, arrangement or snap moved; fails when there is
    // nothing to undo.
    static void undo(std::string_view from, Done done);
};

}  // namespace vistrel
