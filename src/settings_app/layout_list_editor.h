#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "layouts/uuid.h"
#include "platform/defaults.h"
#include "settings_app/layout_window_row.h"

namespace vistrel {

struct LayoutRow;

// The Settings app's edits of the saved layouts, each read from and written to the shared
// store in the store's own format, so the agent's shelf and menu see them at once. Every
// edit answers the message the window shows: empty when there is nothing to say.
class LayoutListEditor {
  public:
    struct Outcome {
        bool ok = true;
        std::string message;
    };

    explicit LayoutListEditor(DefaultsStore& store) : store_(store) {}

    std::vector<LayoutRow> rows() const;
    // The layout's windows in saved order; nothing when it is no longer saved.
    std::optional<std::vector<LayoutWindowRow>> windows(const UUID& id) const;
    // Puts the URL that applies the layout on the pasteboard, unless the URL is one the
    // agent would refuse (a name too long for one) or the pasteboard does not take it.
    Outcome copyURL(const UUID& id);
    Outcome rename(const UUID& id, const std::string& name);
    Outcome remove(const UUID& id);
    Outcome move(std::size_t from, std::size_t to);
    Outcome exportTo(const std::string& path);
    Outcome importFrom(const std::string& path);

  private:
    DefaultsStore& store_;
};

}  // namespace vistrel
