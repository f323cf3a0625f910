#include "session/LoadCounter.h"

#include "simulated/SimulatedDesktop.h"

#include <gtest/gtest.h>

namespace orken {

TEST(LoadCounter, countsSecondsUntilThePageHasFinished)
{
    simulated::SimulatedDesktop desktop;
    const auto model = std::make_shared<WebViewModel>("first");
    const State<std::int64_t> second{{}, 0};
    std::make_shared<LoadCounter>(model, second, desktop.timers, desktop.mainQueue)->startLoadTimer();
    desktop.loop.advance(Seconds{3.5});
    EXPECT_EQ(second.get(), 3);
    model->didFinishLoading.set(true);
    desktop.loop.advance(Seconds{1});
    EXPECT_EQ(second.get(), 0);
}

} // namespace orken
