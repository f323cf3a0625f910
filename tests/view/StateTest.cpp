#include "view/Screen.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

TEST(State, theChangesOfOneTurnAreOneRedraw)
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
    EXPECT_FALSE(screen.host.runFrame()) << "an equal value is no change";

    first->set(1);
    second->set("b");
    first->set(2);
    EXPECT_TRUE(screen.host.shows("a0")) << "never inside the write";
    screen.host.runFrame();
    EXPECT_TRUE(screen.host.shows("b2"));
    EXPECT_EQ(bodies, 2);
}

TEST(State, livesAsLongAsSomebodyHoldsItStrongly)
{
    auto view = std::make_unique<TestView>([] { return Text(""); });
    auto state = std::make_unique<State<int>>(view->makeState(1));
    const WeakState<int> weak = *state;
    view.reset();
    weak.set(2);
    EXPECT_EQ(state->get(), 2);
    state.reset();
    weak.set(3); // does nothing
}

class Model final : public ObservableObject {
public:
    Published<int> field{*this, 1};
};

TEST(Published, tellsBeforeItStores)
{
    Model model;
    std::vector<int> seen;
    const auto subscription = model.observe([&] { seen.push_back(model.field.get()); });
    model.field.set(2);
    model.field.set(3);
    EXPECT_THAT(seen, testing::ElementsAre(1, 2));
}

TEST(Published, everyAssignmentRedraws)
{
    Model model;
    int bodies = 0;
    auto view = std::make_unique<TestView>([&] { return Text(std::to_string(++bodies)); });
    view->observe(model);
    Screen screen(std::move(view));
    model.field.set(2);
    model.field.set(3);
    screen.host.runFrame();
    EXPECT_EQ(bodies, 2) << "once a frame";
    model.field.set(3);
    EXPECT_TRUE(screen.host.runFrame()) << "an equal value as well";
}

} // namespace
} // namespace orken
