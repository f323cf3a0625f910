#include "platform/AlertStack.h"
#include "platform/FullScreenTransition.h"
#include "platform/ReloadLimit.h"
#include "platform/TimerGrid.h"
#include "platform/WindowRegistry.h"
#include "simulated/SimulatedDesktop.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orken {

using testing::ElementsAre;

/// What a window tells (will and did enter: e, E; will and did exit: x, X) when it is toggled (t), is reported to be in
/// full screen (1) or not (0), and when its change is given up (g).
std::string told(const std::string& events)
{
    FullScreenTransition window;
    std::string letters;
    const auto add = [&](FullScreenChange change) { letters += "eExX"[static_cast<std::size_t>(change)]; };
    for (const char event : events) {
        if (event == 'g') {
            window.givenUp();
        } else if (event != 't') {
            std::ranges::for_each(window.reported(event == '1'), add);
        } else if (const auto change = window.toggle()) {
            add(*change);
        }
    }
    return letters;
}

TEST(FullScreenTransition, tellsOfEachChangeOnce)
{
    EXPECT_EQ(told("t0011tt1"), "eEx") << "repeated reports and requests on the way";
    EXPECT_EQ(told("t1t0"), "eExX");
    EXPECT_EQ(told("10"), "eExX") << "changes that nobody asked for";
    EXPECT_EQ(told("tgt"), "ee") << "the first one is given up";
    EXPECT_EQ(told("1tgt"), "eExx") << "the way back is given up";
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
