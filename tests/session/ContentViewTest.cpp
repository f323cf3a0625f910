#include "session/ContentView.h"

#include "machine/MachineServices.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;

constexpr const char* kEcho = "https://ip.example/";

class SessionStub final : public View {
public:
    explicit SessionStub(std::string link) : link_(std::move(link)) {}

    [[nodiscard]] Element body() override { return Text("session " + link_); }

private:
    std::string link_;
};

std::string link(const std::string& serial)
{
    return "https://login.example//accounts/login?param=" + serial + "&xppKey=5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584";
}

struct Bed {
    explicit Bed(const simulated::Route& echo)
    {
        desktop.network.routes[kEcho] = echo;
        window->setContentView(std::make_unique<ContentView>(
            simulated::kEndpoints,
            ContentView::Ports{.identity = identity,
                               .console = desktop.console,
                               .mainQueue = desktop.mainQueue,
                               .notifications = desktop.notifications,
                               .windowControl = machine.windowControl,
                               .makeSessionScreen = [this](const std::string& address) -> std::unique_ptr<View> {
                                   whenScreenIsMade();
                                   return std::make_unique<SessionStub>(address);
                               }}));
        (void)desktop.journal.take();
    }

    void changeScreens() { desktop.notifications.post(NotificationName::applicationDidChangeScreenParameters); }

    std::function<void()> whenScreenIsMade = [] {};
    // The session window is the last one here, so that its toggles can be seen.
    simulated::SimulatedDesktop desktop{{.permanentPanel = false}};
    DeviceIdentity identity = deviceIdentity(portsOf(desktop), simulated::kEndpoints);
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    std::shared_ptr<Window> window = desktop.windows.open("ORKEN");
};

TEST(ContentView, aBlankAddressOpensTheSession)
{
    Bed bed({.body = "\n"});
    bed.desktop.loop.run();
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("GET https://ip.example/", "print asdasdasdasd: Optional(\"\")",
                                                        "print " + link("C02ABC123XYZ"), "enter full screen ORKEN"));
    EXPECT_TRUE(bed.desktop.showing("session " + link("C02ABC123XYZ")));
}

TEST(ContentView, withoutAnAddressTheWindowStaysEmptyForGood)
{
    Bed bed({.error = platformError("network", 1, "", "no route")});
    bed.changeScreens();
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("GET https://ip.example/", "print asdasdasdasd: nil"));
}

TEST(ContentView, theSerialNumberIsReadAnewForTheLine)
{
    Bed bed({.body = "203.0.113.7"});
    bed.desktop.hardware.serial.reset();
    bed.whenScreenIsMade = [&] { bed.desktop.hardware.serial = "NEW"; };
    bed.desktop.loop.run();
    EXPECT_TRUE(bed.desktop.showing("session " + link("Unknown")));
    EXPECT_THAT(bed.desktop.journal.starting("print https"), ElementsAre("print " + link("NEW")));
}

TEST(ContentView, everyScreenChangeTogglesOneSecondLater)
{
    Bed bed({.body = "203.0.113.7"});
    bed.desktop.loop.advance(Seconds{10});
    (void)bed.desktop.journal.take();
    bed.changeScreens();
    bed.desktop.loop.advance(Seconds{0.5});
    bed.changeScreens();
    bed.desktop.loop.advance(Seconds{0.49});
    EXPECT_TRUE(bed.desktop.journal.acts().empty());
    bed.desktop.loop.advance(Seconds{0.02});
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("leave full screen ORKEN"));
    bed.desktop.loop.advance(Seconds{0.5});
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("leave full screen ORKEN", "enter full screen ORKEN"));
}

} // namespace
} // namespace orken
