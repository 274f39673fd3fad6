#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/system_info.h"

namespace vistrel {

// What a problem report tells the service in its address, besides the archive.
struct ReportQuery {
    std::string version;  // the agent's short version
    OperatingSystemVersion os;
    std::string email;  // empty when the user gave none
    std::string note;
};

// The address a problem report is posted to: the service's base URL + "/reports" with the
// query items "app", "version", "os", "email" and "note".
struct ReportEndpoint {
    static constexpr std::string_view path = "/reports";
    static constexpr std::string_view app = "vistrel";
    // The note in the address is cut to this many characters; note.txt keeps it whole.
    static constexpr std::size_t maxNoteCharacters = 2000;

    // Only "https" bases are accepted, and "http" to this machine's loopback address (a
    // local test server). Anything else would send the user's note in the clear.
    static bool accepts(std::string_view baseURL);
    // Nothing when the base is not accepted.
    static std::optional<std::string> url(std::string_view baseURL, const ReportQuery& query);
    // The first `count` characters (Unicode code points) of UTF-8 text, never splitting one.
    static std::string prefix(std::string_view text, std::size_t count);
    // Percent-encodes everything but the unreserved characters of RFC 3986, so "&", "=",
    // "+" and spaces in a note reach the service as typed.
    static std::string percentEncoded(std::string_view text);
};

}  // namespace vistrel
