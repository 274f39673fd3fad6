#include "tracking/thumbnail_match.h"

#include <algorithm>
#include <cmath>

namespace vistrel::ThumbnailMatch {

namespace {

constexpr std::string_view spaceInfix = ".space.";

bool isDigits(std::string_view text) {
    if (text.empty()) return false;
    for (char c : text) {
        if (c < '0' || c > '9') return false;
    }
    return true;
}

bool isCandidate(const Thumbnail& thumbnail, const Window& window) {
    if (thumbnail.display && !thumbnail.display->contains(window.frame.mid())) return false;
    if (thumbnail.bundleIdentifier && *thumbnail.bundleIdentifier != window.bundleIdentifier) {
        return false;
    }
    return sameShape(thumbnail.frame, window.frame);
}

// The single window among the candidates for which `fits` holds: refused when there are
// several, nothing when there is none.
template <typename Fits>
Fit single(const Thumbnail& thumbnail, std::span<const Window> windows, Fits fits) {
    Fit found;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (!isCandidate(thumbnail, windows[i]) || !fits(windows[i])) continue;
        if (found.window) return Fit{std::nullopt, true};
        found.window = i;
    }
    return found;
}

}  // namespace

bool sameShape(Rect thumbnail, Rect window) {
    const double thumbnailHeight = std::abs(thumbnail.height);
    const double windowHeight = std::abs(window.height);
    if (!(thumbnailHeight > 0) || !(windowHeight > 0)) return false;
    const double thumbnailAspect = std::abs(thumbnail.width) / thumbnailHeight;
    const double windowAspect = std::abs(window.width) / windowHeight;
    if (!(thumbnailAspect > 0) || !(windowAspect > 0)) return false;
    // The larger over the smaller, so that the answer does not depend on the order.
    return std::max(thumbnailAspect, windowAspect) / std::min(thumbnailAspect, windowAspect) - 1 <=
           aspectTolerance;
}

Fit fit(const Thumbnail& thumbnail, std::span<const Window> windows) {
    if (!thumbnail.title || thumbnail.title->empty()) {
        if (!thumbnail.bundleIdentifier) return {};
        return single(thumbnail, windows, [](const Window&) { return true; });
    }
    const std::string& title = *thumbnail.title;
    const Fit equal =
        single(thumbnail, windows, [&](const Window& window) { return window.title == title; });
    if (equal.window || equal.refused) return equal;
    return single(thumbnail, windows,
                  [&](const Window& window) { return window.title.starts_with(title); });
}

bool stillShows(std::string_view titleWhenTied, const std::optional<std::string>& titleNow) {
    return titleNow && *titleNow == titleWhenTied;
}

std::optional<std::string> bundleOfIdentifier(std::string_view identifier) {
    const auto at = identifier.rfind(spaceInfix);
    if (at == std::string_view::npos || at == 0) return std::nullopt;
    if (!isDigits(identifier.substr(at + spaceInfix.size()))) return std::nullopt;
    return std::string(identifier.substr(0, at));
}

}  // namespace vistrel::ThumbnailMatch
