#include "crypto/DeviceIdentity.h"

#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <gtest/gtest.h>

namespace orken {
namespace {

constexpr const char* kEcho = "https://ip.example/";

struct Bed {
    simulated::SimulatedDesktop desktop;
    DeviceIdentity identity = deviceIdentity(portsOf(desktop), simulated::kEndpoints);
};

TEST(DeviceIdentity, theSerialNumberIsReadAnew)
{
    Bed bed;
    EXPECT_EQ(bed.identity.platformSerialNumber(), "C02ABC123XYZ");
    bed.desktop.hardware.serial = " \n";
    EXPECT_EQ(bed.identity.platformSerialNumber(), "") << "blank is a value";
    bed.desktop.hardware.serial.reset();
    EXPECT_EQ(bed.identity.platformSerialNumber(), std::nullopt);
}

TEST(DeviceIdentity, theAddressIsTheTrimmedBodyOfAnyAnswer)
{
    const std::pair<simulated::Route, std::optional<std::string>> cases[] = {
        {{.body = " 203.0.113.7 \r\n"}, "203.0.113.7"},
        {{.body = "gone"}, "gone"},
        {{.error = platformError("network", 1, "", "no route")}, std::nullopt}};
    for (const auto& [route, address] : cases) {
        Bed bed;
        bed.desktop.network.routes[kEcho] = route;
        EXPECT_EQ(bed.identity.fetchPublicIPAddress(), address);
        EXPECT_EQ(bed.identity.fetchPublicIPAddress(), address);
        EXPECT_EQ(bed.desktop.journal.starting("GET ").size(), 2U) << "nothing is cached";
    }
}

} // namespace
} // namespace orken
