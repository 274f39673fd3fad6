#pragma once

#include "layouts/shelf_layout.h"
#include "platform/defaults_value.h"

namespace vistrel {

// The shelf's geometry as a preferences record, written for diagnostics when the user asks
// for it: {"frame": [x, y, w, h], "pill": [...], "divider": x (when there is one), "cells":
// [{"kind": "saved" | "save" | "template", "index": i, "rect": [...], "screen": [...]}]},
// in global top-left coordinates.
DefaultsValue shelfGeometryRecord(const ShelfLayout& layout);

}  // namespace vistrel
