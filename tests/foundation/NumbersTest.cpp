#include "foundation/Dates.h"
#include "foundation/Decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <sstream>

namespace orken {

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
    setenv("TZ", "XST-3", 1); // three hours east of Greenwich
    tzset();
    EXPECT_EQ(localStamp(kEpoch + 1735689599s + 999ms), "20250101_025959");
}

TEST(Numbers, decimalTextsReadBack)
{
    std::istringstream texts("0.0 -0.0 640.0 1234.5 0.1 -12.5 0.0001 0.00012345 1e-05 9.999e-05 1.5e-07 "
                             "1000000000000000.0 9007199254740992.0 -9.007199254740994e+15 1e+16 1e+21 5e-324 "
                             "1.7976931348623157e+308 nan inf -inf");
    for (std::string text; texts >> text;) {
        EXPECT_EQ(decimalText(std::strtod(text.c_str(), nullptr)), text);
    }
    EXPECT_EQ(decimalText(-std::nan("")), "nan");
    EXPECT_EQ(optionalDescription(std::optional(640.0)), "Optional(640.0)");
    EXPECT_EQ(optionalDescription(std::optional<double>()), "nil");
}

} // namespace orken
