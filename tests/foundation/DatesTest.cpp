#include "foundation/Dates.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace orken {
namespace {

using namespace std::chrono_literals;
constexpr std::chrono::system_clock::time_point kEpoch;

TEST(Dates, utcFormCutsToThreeDigits)
{
    EXPECT_EQ(iso8601(kEpoch), "1970-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601(kEpoch + 951827696s + 7999us), "2000-02-29T12:34:56.007Z");
    EXPECT_EQ(iso8601(kEpoch + 1735689599s + 999'999us), "2024-12-31T23:59:59.999Z");
    EXPECT_EQ(iso8601(kEpoch - 1us), "1969-12-31T23:59:59.999Z");
}

TEST(Dates, localStampFollowsTheTimeZone)
{
    const char* before = std::getenv("TZ");
    const std::string zone = before ? before : "";
    setenv("TZ", "XST-3", 1); // three hours east of Greenwich
    tzset();
    EXPECT_EQ(localStamp(kEpoch + 1735689599s + 999ms), "20250101_025959");
    before ? setenv("TZ", zone.c_str(), 1) : unsetenv("TZ");
    tzset();
}

} // namespace
} // namespace orken
