#include "view/Screen.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

TEST(ViewTree, aConditionKeepsItsPlace)
{
    bool covered = false;
    Screen screen([&] { return ZStack({Text("below"), When(covered, [] { return Text("cover"); }), Text("above")}); });
    const auto below = screen.host.idOf("below");
    const auto above = screen.host.idOf("above");
    for (const bool now : {true, false, true}) {
        covered = now;
        screen.redraw();
        EXPECT_EQ(screen.host.shows("cover"), now);
        EXPECT_EQ(screen.host.idOf("below"), below);
        EXPECT_EQ(screen.host.idOf("above"), above);
    }
}

TEST(ViewTree, appearActionsRunAfterTheFrameFromTheInsideOut)
{
    Lines log;
    bool there = true;
    auto logs = [&](const char* line) { return [&log, line] { log.emplace_back(line); }; };
    Screen screen([&] {
        auto family = [&] { return VStack({Text("x").onAppear(logs("child"))}).onAppear(logs("parent")); };
        return VStack({When(there, family), Text("beside").onAppear(logs("beside"))}).onAppear(logs("root"));
    });
    screen.host.redraw();
    EXPECT_THAT(log, IsEmpty()) << "nothing has been on the screen yet";
    screen.host.runFrame();
    EXPECT_THAT(log, ElementsAre("child", "parent", "beside", "root"));

    log.clear();
    for (const bool now : {false, true}) {
        there = now;
        screen.redraw();
    }
    EXPECT_THAT(log, ElementsAre("child", "parent")) << "each time it comes onto the screen";
}

TEST(ViewTree, whatHasVanishedBeforeItsFrameNeverAppears)
{
    Lines log;
    bool there = true;
    Screen screen([&] {
        return VStack({When(there, [&] { return Text("").onAppear([&] { log.emplace_back("vanished"); }); }),
                       Text("").onAppear([&] { log.emplace_back("stayed"); })});
    });
    there = false;
    screen.redraw();
    EXPECT_THAT(log, ElementsAre("stayed"));
}

TEST(ViewTree, anActionThatEndsItsOwnTreeRunsToItsEnd)
{
    std::shared_ptr<ViewTree> tree;
    int result = 0;
    auto view = std::make_unique<TestView>([&tree, &result, owned = std::make_shared<int>(1)] {
        return Button("close", [&tree, &result, member = owned.get()] {
            tree->detach();
            tree.reset();
            result = *member; // the view is still there
        });
    });
    simulated::StubViewHost host;
    tree = ViewTree::make(host, std::move(view));
    host.press("close");
    EXPECT_EQ(result, 1);
    EXPECT_FALSE(host.runFrame()) << "a detached tree draws nothing";
}

struct Counted final : View {
    explicit Counted(int initial) : value(initial) {}

    [[nodiscard]] Element body() override
    {
        return Button("value " + std::to_string(value) + " own " + std::to_string(own.get()),
                      [this] { own.set(own.get() + 1); });
    }

    std::shared_ptr<int> life = std::make_shared<int>();
    int value;
    State<int> own = makeState(0);
};

TEST(ViewTree, aNestedViewLivesAsLongAsItsPlace)
{
    std::weak_ptr<int> life;
    int value = 1;
    Screen screen([&] {
        return VStack({When(value > 0, [&] {
            auto make = [&] {
                auto view = std::make_unique<Counted>(value);
                life = view->life;
                return view;
            };
            return Nested<Counted>(make, [&](Counted& view) { view.value = value; });
        })});
    });
    screen.host.press("value 1 own 0");
    screen.host.runFrame();
    value = 2;
    screen.redraw();
    EXPECT_TRUE(screen.host.shows("value 2 own 1"));
    value = 0;
    screen.redraw();
    EXPECT_TRUE(life.expired());
    value = 3;
    screen.redraw();
    EXPECT_TRUE(screen.host.shows("value 3 own 0"));
}

struct Native final : PlatformView {
    [[nodiscard]] NativeHandle* native() override { return nullptr; }
};

/// A nested view to be redrawn by itself.
Element emptyPart(View*& view)
{
    return Nested<TestView>([&view] {
        auto made = std::make_unique<TestView>([] { return Text(""); });
        view = made.get();
        return made;
    });
}

class Bridge {
public:
    explicit Bridge(Lines& log) : log_(log) {}

    [[nodiscard]] std::shared_ptr<int> makeCoordinator() const
    {
        log_.emplace_back("coordinator");
        return std::make_shared<int>(1);
    }

    [[nodiscard]] std::shared_ptr<Native> makeNSView(const RepresentableContext<int>&) const
    {
        log_.emplace_back("view");
        return std::make_shared<Native>();
    }

    void updateNSView(Native&, const RepresentableContext<int>& context) const
    {
        log_.push_back("update " + std::to_string((*context.coordinator)++));
    }

private:
    Lines& log_;
};

TEST(ViewTree, aRepresentableIsUpdatedByTheRedrawsOfItsView)
{
    Lines log;
    View* beside = nullptr;
    Screen screen([&] {
        return ZStack({Representable<Bridge>([&] { return std::make_unique<Bridge>(log); }), emptyPart(beside)});
    });
    EXPECT_THAT(log, ElementsAre("coordinator", "view", "update 1"));
    screen.redraw();
    EXPECT_THAT(log, ElementsAre("coordinator", "view", "update 1", "update 2"));
    screen.redraw(*beside);
    EXPECT_EQ(log.size(), 4U) << "only another view was redrawn";
}

TEST(ViewTree, aReceiverFollowsTheNewestElement)
{
    Lines log;
    int drawing = 0;
    const auto first = std::make_shared<Subject<>>();
    const auto second = std::make_shared<Subject<>>();
    auto source = first;
    View* inside = nullptr;
    Screen screen([&] {
        ++drawing;
        return VStack({When(source != nullptr, [&] {
            return emptyPart(inside).onReceive(source, [&log, drawing] { log.push_back(std::to_string(drawing)); });
        })});
    });
    first->send();
    screen.redraw();
    screen.redraw(*inside); // leaves the element around it alone
    first->send();
    EXPECT_EQ(first->subscriberCount(), 1U);
    source = second;
    screen.redraw();
    first->send();
    second->send();
    EXPECT_THAT(log, ElementsAre("1", "2", "3"));
    source = nullptr;
    screen.redraw();
    EXPECT_EQ(first->subscriberCount() + second->subscriberCount(), 0U);
}

TEST(ViewTree, anAnsweredAlertIsDownBeforeItsActionRuns)
{
    Lines log;
    std::optional<State<bool>> shown;
    auto view = std::make_unique<TestView>([&] {
        auto say = [&](const char* line) {
            return [&log, &shown, line] { log.push_back(line + std::string(shown->get() ? " up" : " down")); };
        };
        return Text("").alert(
            *shown, {.message = "m",
                     .buttons = {{.title = "yes", .action = say("yes")}, {.title = "no", .action = say("no")}}});
    });
    shown = view->makeState(false);
    Screen screen(std::move(view));
    EXPECT_FALSE(screen.host.alert());
    shown->set(true);
    screen.host.runFrame();
    ASSERT_TRUE(screen.host.alert());
    EXPECT_EQ(screen.host.alert()->message, "m");
    screen.host.answerAlert("no");
    screen.host.runFrame();
    EXPECT_FALSE(screen.host.alert());
    EXPECT_THAT(log, ElementsAre("no down"));
}

TEST(ViewTree, aGeometryReaderIsDrawnForItsSize)
{
    std::string unit = "pt";
    Screen screen([&] {
        return GeometryReader([unit](Size size) { return Text(std::to_string(static_cast<int>(size.width)) + unit); });
    });
    EXPECT_TRUE(screen.host.shows("0pt"));
    screen.host.layOut({.width = 640, .height = 480});
    screen.host.runFrame();
    EXPECT_TRUE(screen.host.shows("640pt"));
    unit = "px";
    screen.redraw();
    EXPECT_TRUE(screen.host.shows("640px"));
    screen.host.layOut({.width = 640, .height = 480});
    EXPECT_FALSE(screen.host.runFrame());
}

} // namespace
} // namespace orken
