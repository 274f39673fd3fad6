#include "platform/sim/sim_thumbnail_layout.h"

#include <algorithm>
#include <cmath>

namespace vistrel {

namespace {

Rect rounded(Rect r) {
    return {std::round(r.x), std::round(r.y), std::round(r.width), std::round(r.height)};
}

// The windows of each row when rows hold `columns` windows, in order.
std::vector<std::vector<std::size_t>> rowsOf(std::size_t count, std::size_t columns) {
    std::vector<std::vector<std::size_t>> rows;
    for (std::size_t i = 0; i < count; ++i) {
        if (i % columns == 0) rows.emplace_back();
        rows.back().push_back(i);
    }
    return rows;
}

double rowHeight(const std::vector<Size>& windows, const std::vector<std::size_t>& row) {
    double height = 0;
    for (std::size_t i : row)
        height = std::max(height, windows[i].height);
    return height;
}

// The largest common scale at which these rows fit the area with their gaps.
double fittingScale(const std::vector<Size>& windows,
                    const std::vector<std::vector<std::size_t>>& rows, Rect area) {
    double scale = area.height - SimThumbnailLayout::gap * static_cast<double>(rows.size() - 1);
    double heights = 0;
    for (const auto& row : rows)
        heights += rowHeight(windows, row);
    scale /= std::max(heights, 1.0);
    for (const auto& row : rows) {
        double widths = 0;
        for (std::size_t i : row)
            widths += windows[i].width;
        const double room =
            area.width - SimThumbnailLayout::gap * static_cast<double>(row.size() - 1);
        scale = std::min(scale, room / std::max(widths, 1.0));
    }
    return scale;
}

}  // namespace

std::vector<Rect> SimThumbnailLayout::layOut(const std::vector<Size>& windows, Rect area) {
    std::vector<Rect> frames;
    if (windows.empty()) return frames;
    std::size_t bestColumns = 1;
    double bestScale = 0;
    for (std::size_t columns = 1; columns <= windows.size(); ++columns) {
        const double scale = fittingScale(windows, rowsOf(windows.size(), columns), area);
        if (scale > bestScale) {
            bestScale = scale;
            bestColumns = columns;
        }
    }
    const double scale = std::min(bestScale, largestScale);
    const auto rows = rowsOf(windows.size(), bestColumns);
    double blockHeight = gap * static_cast<double>(rows.size() - 1);
    for (const auto& row : rows)
        blockHeight += rowHeight(windows, row) * scale;
    double top = area.minY() + (area.height - blockHeight) / 2;
    for (const auto& row : rows) {
        double rowWidth = gap * static_cast<double>(row.size() - 1);
        for (std::size_t i : row)
            rowWidth += windows[i].width * scale;
        const double height = rowHeight(windows, row) * scale;
        double left = area.minX() + (area.width - rowWidth) / 2;
        for (std::size_t i : row) {
            const Size size{windows[i].width * scale, windows[i].height * scale};
            frames.push_back(
                rounded({left, top + (height - size.height) / 2, size.width, size.height}));
            left += size.width + gap;
        }
        top += height + gap;
    }
    return frames;
}

}  // namespace vistrel
