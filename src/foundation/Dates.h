#pragma once

#include <chrono>
#include <string>

namespace orken {

/// `YYYY-MM-DDTHH:MM:SS.mmmZ` in UTC (ISO 8601); what is below a millisecond is cut off.
[[nodiscard]] std::string iso8601(std::chrono::system_clock::time_point time);

/// `YYYYMMDD_HHMMSS` in the local time zone, Gregorian.
[[nodiscard]] std::string localStamp(std::chrono::system_clock::time_point time);

} // namespace orken
