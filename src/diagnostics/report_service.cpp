#include "diagnostics/report_service.h"

#include <nlohmann/json.hpp>

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view numberKey = "number";

std::string infoString(std::string_view key) {
    return platform().infoDictionary.string(std::string(key)).value_or("");
}

}  // namespace

std::string ReportService::baseURL() {
    return infoString(baseURLKey);
}

std::string ReportService::supportAddress() {
    return infoString(supportAddressKey);
}

std::optional<std::string> reportNumber(std::string_view body) {
    const nlohmann::json answer = nlohmann::json::parse(body, nullptr, false);
    if (!answer.is_object()) return std::nullopt;
    const auto number = answer.find(numberKey);
    if (number == answer.end()) return std::nullopt;
    if (number->is_number_unsigned()) return std::to_string(number->get<std::uint64_t>());
    if (number->is_string() && !number->get_ref<const std::string&>().empty())
        return number->get<std::string>();
    return std::nullopt;
}

}  // namespace vistrel
