#include "view/Screen.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

TEST(State, onlyChangesRedrawAndAllOfOneTurnAreOneRedraw)
{
    std::optional<State<int>> first;
    std::optional<State<std::string>> second;
    int bodies = 0;
    auto view = std::make_unique<TestView>([&] {
        ++bodies;
        return Text(second->get() + std::to_string(first->get()));
    });
    first = view->makeState(0);
    second = view->makeState(std::string("a"));
    Screen screen(std::move(view));

    first->set(0);
    second->set("a");
    EXPECT_FALSE(screen.host.runFrame());

    first->set(1);
    second->set("b");
    first->set(2);
    EXPECT_TRUE(screen.host.shows("a0")) << "never inside the write";
    screen.host.runFrame();
    EXPECT_TRUE(screen.host.shows("b2"));
    EXPECT_EQ(bodies, 2);
}

TEST(State, livesAsLongAsSomebodyHoldsItAndWeakHoldersDoNot)
{
    auto view = std::make_unique<TestView>([] { return Text(""); });
    auto state = std::make_unique<State<int>>(view->makeState(1));
    const WeakState<int> weak = *state;
    view.reset();
    weak.set(2);
    EXPECT_EQ(state->get(), 2);
    state.reset();
    weak.set(3);
}

class Model final : public ObservableObject {
public:
    Published<int> field{*this, 1};
    int plain = 0;
};

TEST(Published, tellsBeforeItStoresOnEveryAssignment)
{
    Model model;
    std::vector<int> seen;
    const auto subscription = model.observe([&] { seen.push_back(model.field.get()); });
    model.field.set(2);
    model.field.set(2);
    model.plain = 5;
    model.field.set(3);
    EXPECT_THAT(seen, testing::ElementsAre(1, 2, 2));
    EXPECT_EQ(model.field.get(), 3);
}

TEST(Published, equalAssignmentsRedrawTooAndSeveralOfOneTurnOnce)
{
    Model model;
    int bodies = 0;
    auto view = std::make_unique<TestView>([&] {
        ++bodies;
        return Text(std::to_string(model.field.get()));
    });
    view->observe(model);
    Screen screen(std::move(view));
    model.field.set(1);
    screen.host.runFrame();
    EXPECT_EQ(bodies, 2);
    model.field.set(7);
    model.field.set(8);
    screen.host.runFrame();
    EXPECT_EQ(bodies, 3);
    EXPECT_TRUE(screen.host.shows("8"));
}

} // namespace
} // namespace orken
