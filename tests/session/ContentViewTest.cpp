#include "session/ContentView.h"

#include "machine/Bed.h"

namespace orken {
namespace {

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

// Without a panel the session window is the last one, so that its toggles can be seen.
struct Bed : MachineBed {
    explicit Bed(const simulated::Route& echo)
    {
        desktop.network.routes["https://ip.example/"] = echo;
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
    DeviceIdentity identity = deviceIdentity(portsOf(desktop), simulated::kEndpoints);
    std::shared_ptr<Window> window = desktop.windows.open("ORKEN");
};

TEST(ContentView, withoutAnAddressTheWindowStaysEmptyForGood)
{
    Bed bed({.error = platformError("network", 1, "", "no route")});
    bed.changeScreens();
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("GET https://ip.example/", "print asdasdasdasd: nil"));
}

TEST(ContentView, aBlankAddressOpensTheSessionAndTheLineReadsTheSerialNumberAnew)
{
    Bed bed({.body = "\n"});
    bed.desktop.hardware.serial.reset();
    bed.whenScreenIsMade = [&] { bed.desktop.hardware.serial = "NEW"; };
    bed.desktop.loop.run();
    EXPECT_TRUE(bed.desktop.showing("session " + link("Unknown")));
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre("GET https://ip.example/", "print asdasdasdasd: Optional(\"\")",
                                                        "print " + link("NEW"), "enter full screen ORKEN"));
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
