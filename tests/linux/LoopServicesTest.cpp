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
    bool over = false;
    const auto end = Source::after(10ms, [&] { over = true; });
    serveUntil([&] { return over; });
}

} // namespace

} // namespace orken::desktop
