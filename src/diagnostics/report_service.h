#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// Where problem reports go, as the build configured it: information-dictionary keys written
// into the bundle at configure time.
struct ReportService {
    static constexpr std::string_view baseURLKey = "VistrelReportServiceURL";
    static constexpr std::string_view supportAddressKey = "VistrelSupportAddress";

    // The service's base URL; empty when the build carries none (every upload then fails).
    static std::string baseURL();
    // The address users are asked to email a saved report to.
    static std::string supportAddress();
};

// The report number in the service's answer to a successful upload: the JSON object
// {"number": …} with a string or a whole number (see docs/report-service.md). Nothing when
// the body holds no usable number.
std::optional<std::string> reportNumber(std::string_view body);

}  // namespace vistrel
