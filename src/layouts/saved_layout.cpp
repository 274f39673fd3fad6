#include "layouts/saved_layout.h"

#include <algorithm>

namespace vistrel {

namespace {

constexpr char separator[] = " \u00B7 ";
// Up to this many names are all shown; beyond it only the first `namesShownWhenMore` are.
constexpr std::size_t namesShownInFull = 3;
constexpr std::size_t namesShownWhenMore = 2;

std::vector<std::string> distinctNonEmpty(const std::vector<std::string>& names) {
    std::vector<std::string> kept;
    for (const auto& name : names) {
        if (name.empty() || std::find(kept.begin(), kept.end(), name) != kept.end()) continue;
        kept.push_back(name);
    }
    return kept;
}

std::string joined(const std::vector<std::string>& names, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) text += separator;
        text += names[i];
    }
    return text;
}

}  // namespace

std::string SavedLayout::autoName(const std::vector<std::string>& appNames) {
    const auto names = distinctNonEmpty(appNames);
    if (names.empty()) return std::string(defaultName);
    if (names.size() <= namesShownInFull) return joined(names, names.size());
    return joined(names, namesShownWhenMore) + " +" +
           std::to_string(names.size() - namesShownWhenMore);
}

}  // namespace vistrel
