#include "layouts/shelf_geometry_record.h"

#include <string>

namespace vistrel {

namespace {

DefaultsValue rectRecord(Rect rect) {
    return DefaultsValue::Array{rect.x, rect.y, rect.width, rect.height};
}

std::string kindName(ShelfLayout::Item::Kind kind) {
    switch (kind) {
        case ShelfLayout::Item::Kind::saved:
            return "saved";
        case ShelfLayout::Item::Kind::layoutTemplate:
            return "template";
        case ShelfLayout::Item::Kind::save:
            return "save";
    }
    return "save";
}

DefaultsValue cellRecord(const ShelfLayout::Cell& cell) {
    return DefaultsValue::Dictionary{{"kind", kindName(cell.item.kind)},
                                     {"index", cell.item.index},
                                     {"rect", rectRecord(cell.rect)},
                                     {"screen", rectRecord(cell.screen)}};
}

}  // namespace

DefaultsValue shelfGeometryRecord(const ShelfLayout& layout) {
    DefaultsValue::Array cells;
    for (const auto& cell : layout.cells)
        cells.push_back(cellRecord(cell));
    DefaultsValue::Dictionary record{
        {"frame", rectRecord(layout.frame)}, {"pill", rectRecord(layout.pill)}, {"cells", cells}};
    if (layout.divider) record.emplace("divider", *layout.divider);
    return record;
}

}  // namespace vistrel
