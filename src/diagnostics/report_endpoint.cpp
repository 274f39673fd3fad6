#include "diagnostics/report_endpoint.h"

#include <array>
#include <cctype>

namespace vistrel {

namespace {

constexpr std::string_view https = "https://";
constexpr std::string_view http = "http://";
constexpr std::array<std::string_view, 3> loopbackHosts = {"127.0.0.1", "localhost", "[::1]"};
constexpr char hexDigits[] = "0123456789ABCDEF";

// The host (with its brackets for IPv6) of an address after its scheme.
std::string_view hostOf(std::string_view rest) {
    const std::size_t end = rest.find_first_of("/?#");
    std::string_view authority = rest.substr(0, end);
    if (const std::size_t at = authority.rfind('@'); at != std::string_view::npos)
        authority.remove_prefix(at + 1);
    if (authority.starts_with('[')) return authority.substr(0, authority.find(']') + 1);
    return authority.substr(0, authority.find(':'));
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(text[i])) != prefix[i]) return false;
    }
    return true;
}

bool isUnreserved(unsigned char c) {
    return std::isalnum(c) || c == '-' || c == '.' || c == '_' || c == '~';
}

bool isContinuationByte(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

std::string item(std::string_view name, std::string_view value) {
    return std::string(name) + "=" + ReportEndpoint::percentEncoded(value);
}

}  // namespace

bool ReportEndpoint::accepts(std::string_view baseURL) {
    if (startsWithIgnoringCase(baseURL, https))
        return !hostOf(baseURL.substr(https.size())).empty();
    if (!startsWithIgnoringCase(baseURL, http)) return false;
    const std::string_view host = hostOf(baseURL.substr(http.size()));
    for (std::string_view loopback : loopbackHosts) {
        if (host == loopback) return true;
    }
    return false;
}

std::optional<std::string> ReportEndpoint::url(std::string_view baseURL, const ReportQuery& query) {
    if (!accepts(baseURL) || baseURL.find_first_of("?#") != std::string_view::npos)
        return std::nullopt;
    while (baseURL.ends_with('/'))
        baseURL.remove_suffix(1);
    const OperatingSystemVersion& os = query.os;
    const std::string osText =
        std::to_string(os.major) + "." + std::to_string(os.minor) + "." + std::to_string(os.patch);
    // An empty email is sent as the bare item name, without a value.
    const std::string email = query.email.empty() ? "email" : item("email", query.email);
    return std::string(baseURL) + std::string(path) + "?" + item("app", app) + "&" +
           item("version", query.version) + "&" + item("os", osText) + "&" + email + "&" +
           item("note", prefix(query.note, maxNoteCharacters));
}

std::string ReportEndpoint::prefix(std::string_view text, std::size_t count) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isContinuationByte(static_cast<unsigned char>(text[i]))) continue;
        if (characters == count) return std::string(text.substr(0, i));
        ++characters;
    }
    return std::string(text);
}

std::string ReportEndpoint::percentEncoded(std::string_view text) {
    std::string encoded;
    encoded.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (isUnreserved(byte)) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += hexDigits[byte >> 4];
            encoded += hexDigits[byte & 0x0F];
        }
    }
    return encoded;
}

}  // namespace vistrel
