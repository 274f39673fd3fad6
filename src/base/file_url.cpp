#include "base/file_url.h"

#include "base/percent_encoding.h"

namespace vistrel {

namespace {
constexpr std::string_view scheme = "file://";
constexpr std::string_view localhost = "localhost";
// A path keeps its separators.
constexpr std::string_view pathMarks = "/";
}  // namespace

std::optional<std::string> FileURL::path(std::string_view url) {
    if (!url.starts_with(scheme)) return std::nullopt;
    url.remove_prefix(scheme.size());
    if (url.starts_with(localhost)) url.remove_prefix(localhost.size());
    if (!url.starts_with('/')) return std::nullopt;
    return PercentEncoding::decoded(url, false);
}

std::string FileURL::of(std::string_view path) {
    return std::string(scheme) + PercentEncoding::encoded(path, pathMarks);
}

namespace {
std::string_view withoutFinalSlash(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return path;
}
}  // namespace

bool FileURL::same(std::string_view a, std::string_view b) {
    const auto first = path(a);
    const auto second = path(b);
    if (!first || !second) return a == b;
    return withoutFinalSlash(*first) == withoutFinalSlash(*second);
}

std::string FileURL::name(std::string_view url) {
    const std::optional<std::string> local = path(url);
    if (!local) return std::string(url);
    const std::string_view rest = withoutFinalSlash(*local);
    if (rest == "/") return std::string(rest);
    return std::string(rest.substr(rest.rfind('/') + 1));
}

}  // namespace vistrel
