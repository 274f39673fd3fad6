#pragma once

#include <string>

namespace vistrel {

// Formats seconds since 1970-01-01 UTC as an ISO 8601 internet date-time with
// milliseconds, in UTC: "2026-11-15T03:19:02.123Z".
std::string iso8601(double secondsSince1970);

}  // namespace vistrel
