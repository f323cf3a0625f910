#include "linux/services/LoopTimers.h"
#include "linux/services/MainLoopQueue.h"

#include <gtest/gtest.h>

namespace orken::desktop {

namespace {

using namespace std::chrono_literals;

template <class Condition>
void serveUntil(Condition condition)
{
    while (!condition()) {
        g_main_context_iteration(nullptr, TRUE);
    }
}

void serveFor(Seconds duration)
{
    bool over = false;
    const auto end = Source::after(duration, [&] { over = true; });
    serveUntil([&] { return over; });
}

TEST(Source, aCallMayReplaceAndEndItsOwnSource)
{
    auto text = std::make_unique<std::string>("kept");
    std::string read;
    Source source;
    source = Source::idle(G_PRIORITY_DEFAULT, [&source, &read, text = std::shared_ptr<std::string>(std::move(text))] {
        EXPECT_FALSE(source.isPending());
        source = Source::timed([&source] { source = {}; });
        source.setReadyTime(0);
        read = *text;
    });
    serveUntil([&] { return !source.isPending(); });
    EXPECT_EQ(read, "kept");
}

TEST(LoopTimers, standStillUnderAlertsAndThenFireOnce)
{
    AlertStack alerts;
    LoopTimers timers(alerts);
    const gint64 begin = g_get_monotonic_time();
    int fires = 0;
    int slowFires = 0;
    timers.scheduleRepeating(50ms, [&] { ++fires; });
    timers.scheduleRepeating(50s, [&] { ++slowFires; });
    const auto alert = alerts.push();
    serveFor(220ms);
    EXPECT_EQ(fires, 0);
    alerts.pop(alert);
    timers.alertsEnded();
    EXPECT_EQ(fires, 0);
    serveUntil([&] { return fires >= 2; });
    EXPECT_GE(g_get_monotonic_time() - begin, 250000);
    EXPECT_EQ(slowFires, 0);
}

TEST(LoopServices, nothingRunsAfterTheirEnd)
{
    AlertStack alerts;
    LoopTimers timers(alerts);
    MainLoopQueue queue;
    auto unexpected = [] { FAIL() << "after the end"; };
    auto use = [&] {
        queue.async(unexpected);
        queue.after(1ms, unexpected);
        return timers.scheduleRepeating(1ms, unexpected);
    };
    const auto before = use();
    queue.stop();
    timers.stop();
    const auto after = use();
    before->fire();
    after->fire();
    serveFor(10ms);
}

} // namespace

} // namespace orken::desktop
