#include "platform/WindowRegistry.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;

struct ListedWindow final : Window {
    explicit ListedWindow(bool isShown = true) : shown(isShown) {}

    [[nodiscard]] bool isVisible() const override { return shown; }

    [[nodiscard]] WindowStyleMask styleMask() const override { return 0; }

    void setTitle(const std::string&) override {}

    void center() override {}

    void makeKeyAndOrderFront() override {}

    void setContentView(std::unique_ptr<View>) override {}

    void toggleFullScreen() override {}

    void close() override {}

    bool shown;
};

std::shared_ptr<ListedWindow> window(bool isShown = true)
{
    return std::make_shared<ListedWindow>(isShown);
}

TEST(WindowRegistry, keepsItsOrderWhateverTheOrderOfArrival)
{
    WindowRegistry registry;
    const auto permanent = window();
    const auto inspector = window();
    const auto start = window();
    const auto nested = window();
    const auto nestedDeeper = window();
    const auto session = window();
    registry.add(permanent, WindowKind::panel);
    registry.add(inspector, WindowKind::toolkit);
    registry.add(start, WindowKind::application);
    registry.add(nested, WindowKind::panel);
    registry.add(session, WindowKind::application);
    registry.add(nestedDeeper, WindowKind::panel);
    EXPECT_THAT(registry.all(), ElementsAre(start, session, inspector, nestedDeeper, nested, permanent));
    registry.remove(*start);
    registry.remove(*nested);
    EXPECT_THAT(registry.all(), ElementsAre(session, inspector, nestedDeeper, permanent));
}

TEST(WindowRegistry, theKeyWindowIsTheVisibleOneThatHadTheKeyboardLast)
{
    WindowRegistry registry;
    const auto a = window();
    const auto b = window();
    EXPECT_EQ(registry.key(), nullptr);
    registry.add(a, WindowKind::application);
    registry.add(b, WindowKind::application);
    EXPECT_EQ(registry.key(), b) << "before any input the newest stands in front";
    registry.gotKeyboard(*a);
    EXPECT_EQ(registry.key(), a);
    registry.gotKeyboard(*b);
    b->shown = false;
    EXPECT_EQ(registry.key(), a);
    b->shown = true;
    EXPECT_EQ(registry.key(), b);
    a->shown = false;
    registry.remove(*b);
    EXPECT_EQ(registry.key(), nullptr);
}

TEST(WindowRegistry, panelsAndToolkitWindowsDoNotKeepTheApplicationOpen)
{
    WindowRegistry registry;
    const auto start = window();
    const auto session = window(false);
    registry.add(start, WindowKind::application);
    registry.add(session, WindowKind::application);
    registry.add(window(), WindowKind::toolkit);
    registry.add(window(), WindowKind::panel);
    EXPECT_TRUE(registry.isLastVisibleApplicationWindow(*start));
    session->shown = true;
    EXPECT_FALSE(registry.isLastVisibleApplicationWindow(*start));
}

} // namespace
} // namespace orken
