#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// Percent-encoding of URL parts (RFC 3986, section 2.1).
struct PercentEncoding {
    // The text with every "%XY" turned back into its byte, and with '+' read as a space when
    // asked (as in a query); nothing for a '%' not followed by two hexadecimal digits.
    static std::optional<std::string> decoded(std::string_view text, bool plusIsSpace);
    // The text with every byte but the unreserved characters (letters, digits, "-._~") and
    // those in `keep` written as "%XY", in upper-case hexadecimal.
    static std::string encoded(std::string_view text, std::string_view keep = {});
};

}  // namespace vistrel
