#include "layouts/layout_url.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "base/percent_encoding.h"
#include "layouts/layout_requests.h"

namespace vistrel {

namespace {

constexpr std::string_view schemeEnd = "://";
constexpr std::string_view applyPath = "/apply";
constexpr std::string_view savePath = "/save";
constexpr std::string_view undoPath = "/undo";
// The characters a URL may hold as they are (RFC 3986, 2.2 and 2.3), besides letters and
// digits; the system hands over a URL with every other byte percent-encoded.
constexpr std::string_view allowedMarks = "-._~:/?#[]@!$&'()*+,;=%";

LayoutURL::Parsed refuse(std::string reason) {
    return {std::nullopt, std::move(reason)};
}

bool isAlphanumeric(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool allowedInURL(char c) {
    return isAlphanumeric(c) || allowedMarks.find(c) != std::string_view::npos;
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return lower(x) == lower(y); });
}

std::optional<LayoutURL::Action> actionOf(std::string_view path) {
    if (path == applyPath) return LayoutURL::Action::apply;
    if (path == savePath) return LayoutURL::Action::save;
    if (path == undoPath) return LayoutURL::Action::undo;
    return std::nullopt;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const auto at = text.find(separator);
        parts.push_back(text.substr(0, at));
        if (at == std::string_view::npos) return parts;
        text.remove_prefix(at + 1);
    }
}

// The name a query of exactly one "name=VALUE" parameter carries, or why there is none.
LayoutURL::Parsed nameFrom(LayoutURL::Action action, std::optional<std::string_view> query) {
    if (!query) return refuse("no name given");
    const auto parameters = split(*query, '&');
    if (parameters.size() > 1) return refuse("more than one parameter");
    const std::string_view parameter = parameters.front();
    const auto equals = parameter.find('=');
    if (parameter.substr(0, equals) != LayoutURL::nameKey) {
        return refuse("unknown parameter \"" + std::string(parameter.substr(0, equals)) + "\"");
    }
    if (equals == std::string_view::npos) return refuse("no name given");
    auto name = LayoutURL::percentDecoded(parameter.substr(equals + 1));
    if (!name) return refuse("malformed percent escape in the name");
    if (auto problem = LayoutRequests::nameProblem(*name)) return refuse(*problem);
    return {LayoutURL{action, std::move(*name)}, {}};
}

}  // namespace

std::optional<std::string> LayoutURL::percentDecoded(std::string_view text) {
    return PercentEncoding::decoded(text, true);
}

std::string LayoutURL::percentEncoded(std::string_view text) {
    return PercentEncoding::encoded(text);
}

std::string LayoutURL::applyURL(std::string_view name) {
    return std::string(scheme) + std::string(schemeEnd) + std::string(host) +
           std::string(applyPath) + "?" + std::string(nameKey) + "=" + percentEncoded(name);
}

LayoutURL::Parsed LayoutURL::parse(std::string_view text) {
    if (text.size() > maxLength) {
        return refuse("longer than " + std::to_string(maxLength) + " characters");
    }
    if (!std::ranges::all_of(text, allowedInURL)) return refuse("a character not allowed in a URL");
    const auto colon = text.find(':');
    if (colon == std::string_view::npos || !equalsIgnoringCase(text.substr(0, colon), scheme)) {
        return refuse("not a vistrel URL");
    }
    text.remove_prefix(colon);
    if (!text.starts_with(schemeEnd)) return refuse("malformed, expected \"vistrel://\"");
    text.remove_prefix(schemeEnd.size());
    if (text.find('#') != std::string_view::npos) return refuse("a fragment is not allowed");

    const auto pathStart = std::min(text.find('/'), text.find('?'));
    if (!equalsIgnoringCase(text.substr(0, pathStart), host)) {
        return refuse("unknown host \"" + std::string(text.substr(0, pathStart)) + "\"");
    }
    text.remove_prefix(std::min(pathStart, text.size()));

    const auto queryStart = text.find('?');
    const std::string_view path = text.substr(0, queryStart);
    const auto action = actionOf(path);
    if (!action) return refuse("unknown action \"" + std::string(path) + "\"");
    std::optional<std::string_view> query;
    if (queryStart != std::string_view::npos) query = text.substr(queryStart + 1);

    if (*action == Action::undo) {
        if (query) return refuse("undo takes no parameters");
        return {LayoutURL{Action::undo, {}}, {}};
    }
    return nameFrom(*action, query);
}

}  // namespace vistrel
