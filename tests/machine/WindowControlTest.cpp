#include "machine/Bed.h"

namespace orken {
namespace {

struct Bed : MachineBed {
    std::shared_ptr<Window> window(const std::string& title, bool shown = true)
    {
        const auto opened = desktop.windows.open(title);
        opened->setVisible(shown);
        (void)desktop.journal.take();
        return opened;
    }

    WindowControl& control = machine.windowControl;
    State<bool> isFullScreen{{}, false};
};

bool isFull(const std::shared_ptr<Window>& window)
{
    return (window->styleMask() & windowStyle::kFullScreen) != 0;
}

TEST(WindowControl, theFirstWindowEntersFullScreenOnce)
{
    Bed bed;
    bed.control.enterFullScreen(bed.isFullScreen);
    EXPECT_FALSE(bed.isFullScreen.get()) << "there is no window yet";
    const auto first = bed.window("A");
    bed.window("B");
    bed.control.enterFullScreen(bed.isFullScreen);
    EXPECT_TRUE(bed.isFullScreen.get()) << "set with the request";
    bed.desktop.loop.advance(Seconds{1});
    bed.isFullScreen.set(false);
    bed.control.enterFullScreen(bed.isFullScreen);
    EXPECT_FALSE(bed.isFullScreen.get()) << "already there: nothing is written";
    EXPECT_TRUE(isFull(first));
}

TEST(WindowControl, theLastWindowIsToggled)
{
    Bed bed;
    bed.control.toggleFullScreen();
    const auto first = bed.window("A");
    const auto last = bed.window("B");
    for (const bool full : {true, false, true}) {
        bed.control.toggleFullScreen();
        bed.desktop.loop.advance(Seconds{1});
        EXPECT_EQ(isFull(last), full);
    }
    EXPECT_FALSE(isFull(first));
}

TEST(WindowControl, closesEveryVisibleWindowButTheFirstInTheList)
{
    const std::pair<std::vector<bool>, std::vector<std::string>> cases[] = {
        {{}, {}},
        {{true}, {}},
        {{false, true, true}, {"close B", "close C"}},
        {{true, false, true}, {"close C"}},
    };

    for (const auto& [shown, closed] : cases) {
        Bed bed;
        for (std::size_t i = 0; i < shown.size(); ++i) {
            bed.window(std::string(1, static_cast<char>('A' + i)), shown[i]);
        }
        bed.control.closeOtherWindows();
        EXPECT_EQ(bed.desktop.journal.acts(), closed);
    }
}

TEST(WindowControl, theFlagFollowsEveryWindowForAsLongAsItExists)
{
    Bed bed;
    bed.window("A");
    const auto other = bed.window("B");
    auto flag = std::make_unique<State<bool>>(std::weak_ptr<Invalidation>(), false);
    bed.control.observeFullScreenChanges(*flag);
    bed.control.observeFullScreenChanges(*flag);
    EXPECT_THAT(bed.desktop.journal.take(), ElementsAre("print FullScreen observeFullScreenChanges ",
                                                        "print FullScreen observeFullScreenChanges "));
    other->toggleFullScreen();
    EXPECT_FALSE(flag->get());
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_TRUE(flag->get());
    other->toggleFullScreen();
    EXPECT_FALSE(flag->get()) << "from the beginning of the way out";
    flag.reset();
    bed.desktop.loop.advance(Seconds{1});
    other->toggleFullScreen();
}

TEST(WindowControl, escapeReachesNoWindow)
{
    Bed bed;
    bed.window("A");
    bed.window("B");
    EXPECT_EQ(bed.desktop.keyMonitors.handle({.keyCode = kEscapeKeyCode}), KeyHandling::passOn) << "nobody watches yet";
    bed.control.installKeyMonitor();
    bed.control.installKeyMonitor();
    EXPECT_EQ(bed.desktop.keyMonitors.handle({.keyCode = kOtherKeyCode}), KeyHandling::passOn);
    EXPECT_THAT(bed.desktop.journal.take(), IsEmpty());
    EXPECT_EQ(bed.desktop.keyMonitors.handle({.keyCode = kEscapeKeyCode}), KeyHandling::swallow);
    EXPECT_THAT(bed.desktop.journal.take(), ElementsAre("close B"));
}

} // namespace
} // namespace orken
