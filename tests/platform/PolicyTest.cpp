#include "platform/AlertStack.h"
#include "platform/BundleInfo.h"
#include "platform/FullScreenTransition.h"
#include "platform/TimerGrid.h"
#include "simulated/SimulatedMachine.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FullScreenTransition, takesOneRequestAtATimeAndIsFullScreenOnlyInBetween)
{
    FullScreenTransition window;
    EXPECT_EQ(window.toggle(), FullScreenChange::willEnter);
    EXPECT_EQ(window.toggle(), std::nullopt);
    EXPECT_FALSE(window.isFullScreen());
    EXPECT_THAT(window.reported(false), IsEmpty()) << "a repeated report of the old state";
    EXPECT_TRUE(window.isUnderWay());
    EXPECT_THAT(window.reported(true), ElementsAre(FullScreenChange::didEnter));
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_EQ(window.toggle(), FullScreenChange::willExit);
    EXPECT_FALSE(window.isFullScreen()) << "on its way back";
    EXPECT_EQ(window.toggle(), std::nullopt);
    EXPECT_THAT(window.reported(true), IsEmpty());
    EXPECT_THAT(window.reported(false), ElementsAre(FullScreenChange::didExit));
    EXPECT_FALSE(window.isUnderWay());
}

TEST(FullScreenTransition, followsChangesThatNobodyAskedFor)
{
    FullScreenTransition window;
    EXPECT_THAT(window.reported(true), ElementsAre(FullScreenChange::willEnter, FullScreenChange::didEnter));
    EXPECT_THAT(window.reported(false), ElementsAre(FullScreenChange::willExit, FullScreenChange::didExit));
}

TEST(FullScreenTransition, goesBackToWhereItWasWhenTheDesktopDoesNothing)
{
    FullScreenTransition window;
    (void)window.toggle();
    window.givenUp();
    EXPECT_FALSE(window.isFullScreen() || window.isUnderWay());
    (void)window.reported(true);
    (void)window.toggle();
    window.givenUp();
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_EQ(window.toggle(), FullScreenChange::willExit);
}

TEST(TimerGrid, lateFiresAreOneAndTheGridStays)
{
    TimerGrid grid(Seconds{0}, Seconds{10});

    const struct {
        double now;
        bool due;
        double next;
    } cases[] = {{9.9, false, 10}, {10, true, 20}, {35, true, 40}, {40.5, true, 50}, {40.6, false, 50}, {50, true, 60}};

    for (const auto& one : cases) {
        EXPECT_EQ(grid.isDue(Seconds{one.now}), one.due) << one.now;
        grid.fired(Seconds{one.now});
        EXPECT_EQ(grid.next(), Seconds{one.next}) << one.now;
    }
}

TEST(AlertStack, anAlertIsOverOnlyWhenTheOnesAboveItAre)
{
    AlertStack stack;
    const auto outer = stack.push();
    const auto inner = stack.push();
    stack.answer(outer, 1);
    EXPECT_EQ(stack.result(outer), std::nullopt);
    EXPECT_EQ(stack.result(inner), std::nullopt);
    stack.answer(inner, 0);
    EXPECT_EQ(stack.result(inner), 1000);
    stack.pop(inner);
    EXPECT_EQ(stack.result(outer), 1001);
    EXPECT_EQ(stack.depth(), 1U);
}

TEST(AlertStack, theFirstAnswerCountsAndTheProgramCanEndWhatHasNone)
{
    AlertStack stack;
    const auto outer = stack.push();
    const auto inner = stack.push();
    stack.answer(inner, 2);
    stack.abort(inner);
    stack.abortAll();
    EXPECT_EQ(stack.result(inner), 1002);
    stack.pop(inner);
    EXPECT_EQ(stack.result(outer), -1001);
}

TEST(BundleInfo, onlyATextIsAVersion)
{
    simulated::SimulatedBundle bundle;
    bundle.values = {{"text", InfoValue("1.0")}, {"empty", InfoValue("")}, {"number", InfoValue(1.0)}};
    EXPECT_EQ(infoText(bundle, "text"), "1.0");
    EXPECT_EQ(infoText(bundle, "empty"), "");
    EXPECT_EQ(infoText(bundle, "number"), std::nullopt);
    EXPECT_EQ(infoText(bundle, "missing"), std::nullopt);
}

} // namespace
} // namespace orken
