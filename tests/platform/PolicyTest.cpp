#include "platform/AlertStack.h"
#include "platform/FullScreenTransition.h"
#include "platform/ReloadLimit.h"
#include "platform/TimerGrid.h"
#include "platform/WindowRegistry.h"
#include "simulated/SimulatedDesktop.h"

#include <gmock/gmock.h>

namespace orken {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FullScreenTransition, aRepeatedReportOfTheOldStateEndsNothing)
{
    FullScreenTransition window;
    (void)window.toggle();
    EXPECT_THAT(window.reported(false), IsEmpty());
    EXPECT_TRUE(window.isUnderWay());
    EXPECT_THAT(window.reported(true), ElementsAre(FullScreenChange::didEnter));
    EXPECT_EQ(window.toggle(), FullScreenChange::willExit);
    EXPECT_EQ(window.toggle(), std::nullopt);
    EXPECT_THAT(window.reported(true), IsEmpty());
    EXPECT_THAT(window.reported(false), ElementsAre(FullScreenChange::didExit));
}

TEST(FullScreenTransition, followsChangesThatNobodyAskedFor)
{
    FullScreenTransition window;
    EXPECT_THAT(window.reported(true), ElementsAre(FullScreenChange::willEnter, FullScreenChange::didEnter));
    EXPECT_THAT(window.reported(false), ElementsAre(FullScreenChange::willExit, FullScreenChange::didExit));
}

TEST(FullScreenTransition, aChangeThatIsGivenUpLeavesTheOldState)
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

TEST(TimerGrid, lateFiresAreOne)
{
    TimerGrid grid(Seconds{0}, Seconds{10});

    const std::tuple<double, bool, double> cases[] = {{9.9, false, 10}, {10, true, 20},    {35, true, 40},
                                                      {40.5, true, 50}, {40.6, false, 50}, {50, true, 60}};
    for (const auto& [now, due, next] : cases) {
        EXPECT_EQ(grid.isDue(Seconds{now}), due) << now;
        grid.fired(Seconds{now});
        EXPECT_EQ(grid.next(), Seconds{next}) << now;
    }
}

TEST(AlertStack, anAlertIsOverWhenTheOnesAboveItAre)
{
    AlertStack stack;
    const auto unanswered = stack.push();
    const auto outer = stack.push();
    const auto inner = stack.push();
    stack.answer(outer, 1);
    EXPECT_EQ(stack.result(outer), std::nullopt);
    stack.answer(inner, 2);
    stack.abort(inner);
    stack.abortAll();
    EXPECT_EQ(stack.result(inner), 1002);
    stack.pop(inner);
    EXPECT_EQ(stack.result(outer), 1001);
    stack.pop(outer);
    EXPECT_EQ(stack.result(unanswered), kAlertAborted);
    EXPECT_EQ(stack.depth(), 1U);
}

TEST(WindowRegistry, aPanelStaysBehindLaterWindows)
{
    using enum WindowKind;
    WindowRegistry registry;
    simulated::SimulatedDesktop desktop;
    std::vector<std::shared_ptr<Window>> added;
    for (const WindowKind kind : {panel, toolkit, application, panel, application, panel}) {
        registry.add(added.emplace_back(desktop.windows.open("")), kind);
    }
    EXPECT_THAT(registry.all(), ElementsAre(added[2], added[4], added[1], added[5], added[3], added[0]));
    registry.remove(*added[2]);
    registry.remove(*added[3]);
    EXPECT_THAT(registry.all(), ElementsAre(added[4], added[1], added[5], added[0]));
}

TEST(WindowRegistry, theKeyWindowIsTheVisibleOneThatHadTheKeyboardLast)
{
    simulated::SimulatedDesktop desktop;
    WindowRegistry registry;
    const auto a = desktop.windows.open("a");
    const auto b = desktop.windows.open("b");
    EXPECT_EQ(registry.key(), nullptr);
    registry.add(a, WindowKind::application);
    registry.add(b, WindowKind::application);
    EXPECT_EQ(registry.key(), b) << "before any input the newest stands in front";
    registry.gotKeyboard(*a);
    EXPECT_EQ(registry.key(), a);
    registry.gotKeyboard(*b);
    b->setVisible(false);
    EXPECT_EQ(registry.key(), a);
}

TEST(WindowRegistry, onlyApplicationWindowsKeepTheApplicationOpen)
{
    simulated::SimulatedDesktop desktop;
    WindowRegistry registry;
    const auto start = desktop.windows.open("start");
    const auto session = desktop.windows.open("session");
    registry.add(start, WindowKind::application);
    registry.add(session, WindowKind::application);
    registry.add(desktop.windows.open("other"), WindowKind::toolkit);
    registry.add(desktop.windows.open("other"), WindowKind::panel);
    EXPECT_FALSE(registry.isLastVisibleApplicationWindow(*start));
    session->setVisible(false);
    EXPECT_TRUE(registry.isLastVisibleApplicationWindow(*start));
}

TEST(ReloadLimit, allowsThreeReloadsInAnyMinute)
{
    ReloadLimit limit;
    std::string answers;
    for (const double now : {0.0, 10.0, 20.0, 30.0, 59.9, 60.0, 61.0, 70.0, 80.0, 81.0}) {
        answers += limit.allows(Seconds{now}) ? 'y' : 'n';
    }
    EXPECT_EQ(answers, "yyynnynyyn");
}

} // namespace orken
