#include "contract/ContractDesktop.h"

namespace orken {

TEST_P(Contract, thePanelIsTheLastWindowOfTheList)
{
    launch();
    ASSERT_EQ(ports.windows.all().size(), 2U);
    const auto start = ports.windows.all().front();
    const auto panel = ports.windows.all().back();
    EXPECT_TRUE(start->isVisible());
    EXPECT_FALSE(panel->isVisible());

    const auto made = makeWindow();
    EXPECT_FALSE(made->isVisible());
    EXPECT_EQ(ports.windows.all(), (std::vector{start, made, panel}));
    made->makeKeyAndOrderFront();
    EXPECT_EQ(ports.windows.key(), made);
    made->close();
    EXPECT_FALSE(made->isVisible());
    EXPECT_EQ(ports.windows.key(), start);
    start->close();
    EXPECT_EQ(ports.windows.key(), nullptr);
    settle();
    EXPECT_EQ(ports.windows.all(), (std::vector{made, panel}))
        << "what the application opened itself stays in the list";
}

TEST_P(Contract, fullScreenIgnoresRequestsOnTheWay)
{
    launch();
    const auto window = makeWindow();
    window->makeKeyAndOrderFront();
    std::string log;
    const auto tell = [&](NotificationName name, const char* letter) {
        ports.notifications.addObserver(name, [&log, letter] { log += letter; });
    };
    tell(NotificationName::windowWillEnterFullScreen, "e");
    tell(NotificationName::windowDidEnterFullScreen, "E");
    tell(NotificationName::windowWillExitFullScreen, "x");
    tell(NotificationName::windowDidExitFullScreen, "X");
    const auto isFull = [&] { return (window->styleMask() & windowStyle::kFullScreen) != 0; };
    settle();

    window->toggleFullScreen();
    EXPECT_EQ(log, "e");
    window->toggleFullScreen();
    EXPECT_FALSE(isFull());
    EXPECT_TRUE(runUntil([&] { return log == "eE"; }));
    EXPECT_TRUE(isFull());
    window->toggleFullScreen();
    EXPECT_FALSE(isFull());
    EXPECT_TRUE(runUntil([&] { return log == "eExX"; }));
    EXPECT_FALSE(isFull());

    window->close();
    window->toggleFullScreen();
    ports.windows.all().back()->toggleFullScreen();
    settle();
    EXPECT_EQ(log, "eExX") << "hidden windows and panels take no part";
}

TEST_P(Contract, contentAppearsWithItsWindow)
{
    launch();
    settle();
    EXPECT_EQ(appeared, 1);
    bodies = appeared = 0;
    const auto window = makeWindow();
    window->setContentView(std::make_unique<Content>(*this));
    EXPECT_EQ(bodies, 1);
    settle();
    EXPECT_EQ(appeared, 0) << "a hidden window has no frames";
    window->makeKeyAndOrderFront();
    EXPECT_TRUE(runUntil([&] { return appeared == 1; }));
    text->set("after");
    text->set("later");
    EXPECT_EQ(bodies, 1);
    EXPECT_TRUE(runUntil([&] { return bodies == 2; }));
    settle();
    EXPECT_EQ(bodies, 2);
    EXPECT_EQ(appeared, 1);
}

TEST_P(Contract, terminatesOnce)
{
    launch();
    EXPECT_FALSE(ports.application.isTerminating());
    ports.application.terminate();
    ports.application.terminate();
    EXPECT_TRUE(ports.application.isTerminating());
    EXPECT_EQ(delegate.terminations, 1);
    EXPECT_EQ(ports.alerts.runModal({.title = "?", .buttons = {{.title = "Evet"}}}), kAlertAborted);
}

} // namespace orken
