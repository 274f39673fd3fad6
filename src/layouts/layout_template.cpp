#include "layouts/layout_template.h"

namespace vistrel {

namespace {

// The nearest doubles to the thirds, not rounded decimals.
constexpr double third = 1.0 / 3.0;
constexpr double twoThirds = 2.0 / 3.0;
constexpr double half = 0.5;

std::vector<LayoutTemplate> makeTemplates() {
    return {
        {"halves", "Halves", {{0, 0, half, 1}, {half, 0, half, 1}}},
        {"main-side", "Main + side", {{0, 0, twoThirds, 1}, {twoThirds, 0, third, 1}}},
        {"thirds", "Thirds", {{0, 0, third, 1}, {third, 0, third, 1}, {twoThirds, 0, third, 1}}},
        {"main-stack",
         "Main + stack",
         {{0, 0, half, 1}, {half, 0, half, half}, {half, half, half, half}}},
        {"grid",
         "Grid",
         {{0, 0, half, half},
          {half, 0, half, half},
          {0, half, half, half},
          {half, half, half, half}}},
    };
}

}  // namespace

const std::vector<LayoutTemplate>& LayoutTemplate::all() {
    static const std::vector<LayoutTemplate> templates = makeTemplates();
    return templates;
}

}  // namespace vistrel
