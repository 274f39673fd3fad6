#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// A request for the Layouts feature by URL, as scripts and other applications open it:
// "vistrel://layout/apply?name=NAME", "vistrel://layout/save?name=NAME" and
// "vistrel://layout/undo". The scheme and the host are matched without regard to case
// (RFC 3986, 3.1 and 3.2.2); the path and the parameter's key exactly. The name is
// percent-decoded, with '+' read as a space as in a form, and must be UTF-8 text without
// control characters. Anything else is refused with the reason, and nothing is done.
struct LayoutURL {
    enum class Action { apply, save, undo };

    static constexpr std::string_view scheme = "vistrel";
    static constexpr std::string_view host = "layout";
    static constexpr std::string_view nameKey = "name";
    // Longer texts are refused before they are read: no name a user types comes near, and a
    // script that sends megabytes is refused at once instead of decoded.
    static constexpr std::size_t maxLength = 2048;

    Action action = Action::apply;
    // The decoded name; empty for undo.
    std::string name;

    // The request the text asks for, or why it is refused.
    struct Parsed;
    static Parsed parse(std::string_view text);

    // The text with "%XX" escapes decoded and '+' read as a space, as in a query; nothing
    // when an escape is not '%' and two hexadecimal digits.
    static std::optional<std::string> percentDecoded(std::string_view text);

    // The URL that applies the layout named `name`: "vistrel://layout/apply?name=" and the
    // name percent-encoded. parse() gives the name back unless the URL is longer than
    // maxLength or the name is not one parse() accepts.
    static std::string applyURL(std::string_view name);

    // The text with every byte but RFC 3986's unreserved characters (letters, digits and
    // "-._~", 2.3) as "%XX", upper-case: a space is "%20" and a '+' is "%2B", so neither reads
    // as the other, and a UTF-8 name is escaped byte by byte.
    static std::string percentEncoded(std::string_view text);

    friend bool operator==(const LayoutURL&, const LayoutURL&) = default;
};

struct LayoutURL::Parsed {
    std::optional<LayoutURL> url;
    std::string refusal;
};

}  // namespace vistrel
