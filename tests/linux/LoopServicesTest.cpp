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
    const auto end = makeTimedSource("end", [&] { over = true; });
    g_source_set_ready_time(end.get(), g_get_monotonic_time() + static_cast<gint64>(duration.count() * G_USEC_PER_SEC));
    g_source_attach(end.get(), nullptr);
    serveUntil([&] { return over; });
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
