#include "foundation/Dates.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace orken {

namespace {

using Clock = std::chrono::system_clock;

std::time_t wholeSeconds(Clock::time_point time)
{
    // Towards the past: to_time_t alone cuts times before 1970 towards zero.
    return Clock::to_time_t(std::chrono::floor<std::chrono::seconds>(time));
}

} // namespace

// Not by strftime: it writes what the locale says.

std::string iso8601(Clock::time_point time)
{
    const std::time_t seconds = wholeSeconds(time);
    const auto milliseconds =
        std::chrono::floor<std::chrono::milliseconds>(time) - std::chrono::floor<std::chrono::seconds>(time);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d.%03dZ", utc.tm_year + 1900, utc.tm_mon + 1,
                  utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec, static_cast<int>(milliseconds.count()));
    return text.data();
}

std::string localStamp(Clock::time_point time)
{
    const std::time_t seconds = wholeSeconds(time);
    std::tm local{};
    localtime_r(&seconds, &local);
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), "%04d%02d%02d_%02d%02d%02d", local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return text.data();
}

} // namespace orken
