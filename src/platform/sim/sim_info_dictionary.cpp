#include "platform/sim/sim_info_dictionary.h"

namespace vistrel {

SimInfoDictionary::SimInfoDictionary()
    : values{{"VistrelReportServiceURL", VISTREL_REPORT_SERVICE_URL},
             {"VistrelSupportAddress", VISTREL_SUPPORT_ADDRESS}} {}

std::optional<std::string> SimInfoDictionary::string(const std::string& key) {
    const auto found = values.find(key);
    if (found == values.end()) return std::nullopt;
    return found->second;
}

}  // namespace vistrel
