#include "contract/ContractDesktop.h"

namespace orken {
namespace {

const Alert kQuestion{.title = "?", .buttons = {{.title = "Evet"}, {.title = "Hayır"}}};

} // namespace

TEST_P(Contract, theMainQueueIsFirstInFirstOut)
{
    std::string log;
    ports.mainQueue.after(Seconds{0.05}, [&] { log += "e"; });
    ports.mainQueue.async([&] {
        ports.mainQueue.async([&] { log += "c"; });
        log += "a";
    });
    ports.mainQueue.async([&] { log += "b"; });
    ports.mainQueue.after(Seconds{0.02}, [&] { log += "d"; });
    EXPECT_EQ(log, "");
    EXPECT_TRUE(runUntil([&] { return log.size() == 5; }));
    EXPECT_EQ(log, "abcde");
}

TEST_P(Contract, timersRepeatWithoutAHandleUntilTheyAreInvalidated)
{
    int fires = 0;
    std::shared_ptr<Timer> timer;
    timer = ports.timers.scheduleRepeating(Seconds{0.03}, [&] {
        if (++fires == 3) {
            timer->invalidate();
        }
    });
    int others = 0;
    (void)ports.timers.scheduleRepeating(Seconds{0.03}, [&] { ++others; });
    EXPECT_EQ(fires, 0);
    timer->fire();
    EXPECT_EQ(fires, 1);
    EXPECT_TRUE(runUntil([&] { return others >= 6; }));
    timer->fire();
    EXPECT_EQ(fires, 3) << "final, also from inside the block";
}

TEST_P(Contract, anAlertIsAnsweredByItsButtonsPosition)
{
    launch();
    for (const std::size_t button : {0U, 1U}) {
        desktop->answerNextAlert(button);
        EXPECT_EQ(ports.alerts.runModal(kQuestion), 1000 + static_cast<int>(button));
    }
    EXPECT_FALSE(ports.windows.all().back()->isVisible());
}

TEST_P(Contract, timersWaitUnderAnAlert)
{
    launch();
    int fires = 0;
    int firesUnderAlert = -1;
    const auto timer = ports.timers.scheduleRepeating(Seconds{0.02}, [&] { ++fires; });
    (void)ports.timers.scheduleRepeating(Seconds{1000}, [] { FAIL() << "its time has not come"; });
    ports.mainQueue.after(Seconds{0.1}, [&] {
        firesUnderAlert = fires;
        EXPECT_TRUE(ports.windows.all().back()->isVisible());
        ports.windows.all().back()->close();
    });
    EXPECT_EQ(ports.alerts.runModal(kQuestion), kAlertAborted);
    EXPECT_TRUE(fires == 0 && firesUnderAlert == 0) << "not inside the alert's call either";
    EXPECT_TRUE(runUntil([&] { return fires >= 1; }));
    timer->invalidate();
}

TEST_P(Contract, underAnAlertFromAQueueItemTheQueueWaits)
{
    launch();
    std::string log;
    desktop->answerNextAlert(0);
    ports.mainQueue.async([&] {
        ports.mainQueue.async([&] { log += "later"; });
        log += ports.alerts.runModal(kQuestion) == 1000 ? "yes " : "no ";
    });
    EXPECT_TRUE(runUntil([&] { return log.ends_with("later"); }));
    EXPECT_EQ(log, "yes later");
}

} // namespace orken
