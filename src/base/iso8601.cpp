#include "base/iso8601.h"

#include <chrono>
#include <cmath>
#include <cstdio>

namespace vistrel {

namespace {
constexpr double millisecondsPerSecond = 1000;
}  // namespace

std::string iso8601(double secondsSince1970) {
    using namespace std::chrono;
    const auto total = milliseconds(
        static_cast<std::int64_t>(std::floor(secondsSince1970 * millisecondsPerSecond)));
    const auto day = floor<days>(total);
    const year_month_day date{sys_days{day}};
    const hh_mm_ss time{total - day};
    char text[32];
    std::snprintf(
        text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
        static_cast<int>(time.seconds().count()), static_cast<int>(time.subseconds().count()));
    return text;
}

}  // namespace vistrel
