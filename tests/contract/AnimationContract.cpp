#include "contract/ContractDesktop.h"

namespace orken {
namespace {

const AnimationDocument kSquare{
    .json = R"({"v":"5.5.0","fr":60,"ip":0,"op":60,"w":10,"h":10,"layers":[{"ty":4,"ip":0,"op":60,"st":0,)"
            R"("ks":{},"shapes":[{"ty":"rc","p":{"k":[5,5]},"s":{"k":[9,9]},"r":{"k":0}},)"
            R"({"ty":"fl","c":{"k":[1,0,0,1]},"o":{"k":100}}]}]})",
    .size = {.width = 10, .height = 10},
    .frameRate = 60,
    .frameCount = 60};

/// Puts the surface into a window.
struct Placed {
    [[nodiscard]] std::shared_ptr<AnimationSurface> makeNSView(const RepresentableContext<NoCoordinator>&) const
    {
        return surface;
    }

    static void updateNSView(AnimationSurface&, const RepresentableContext<NoCoordinator>&) {}

    std::shared_ptr<AnimationSurface> surface;
};

class Screen final : public View {
public:
    explicit Screen(std::shared_ptr<AnimationSurface> surface) : opacity(makeState(1.0)), surface_(std::move(surface))
    {
    }

    [[nodiscard]] Element body() override
    {
        auto make = [this] { return std::make_unique<Placed>(Placed{surface_}); };
        return ZStack({Representable<Placed>(make).frame({.width = 100, .height = 50})}).opacity(opacity.get());
    }

    State<double> opacity;

private:
    std::shared_ptr<AnimationSurface> surface_;
};

} // namespace

TEST_P(Contract, anAnimationSurfaceTicksOnlyWhileItCanBeSeen)
{
    launch();
    const auto surface = ports.animationSurfaces.make({.width = 100, .height = 50});
    EXPECT_EQ(surface->bounds(), (Size{100, 50}));
    auto content = std::make_unique<Screen>(surface);
    const auto opacity = content->opacity;
    const auto window = makeWindow();
    window->setContentView(std::move(content));
    int ticks = 0;
    surface->setFrameTick([&](Seconds) { ++ticks; });
    window->makeKeyAndOrderFront();
    const auto ticksOn = [&] { return runUntil([&, before = ticks] { return ticks >= before + 3; }); };
    const auto isStill = [&] {
        settle();
        const int before = ticks;
        settle();
        return ticks == before;
    };
    EXPECT_TRUE(ticksOn());
    auto hidden = opacity;
    hidden.set(0);
    EXPECT_TRUE(isStill()) << "around it is opacity 0";
    hidden.set(1);
    EXPECT_TRUE(ticksOn());
    surface->setFrameTick({});
    EXPECT_TRUE(isStill()) << "nobody wants them";
    window->close();
}

TEST_P(Contract, anAnimationSurfaceSaysOnceWhetherItsDocumentCanBeDrawn)
{
    launch();
    const auto surface = ports.animationSurfaces.make({.width = 100, .height = 50});
    std::vector<bool> opened;
    const AnimationSurface::Events events{.opened = [&](bool usable) { opened.push_back(usable); },
                                          .failed = [] { FAIL(); }};
    surface->setPlacement({.width = 100, .height = 50}, LottieContentMode::scaleAspectFit);
    const auto document = ports.animationSurfaces.prepare(kSquare);
    ASSERT_TRUE(document);
    surface->open(document.value(), events);
    EXPECT_TRUE(opened.empty()) << "never at once";
    EXPECT_TRUE(runUntil([&] { return opened == std::vector{true}; }));
    surface->show(3, 4);
    surface->open({}, events);
    EXPECT_TRUE(runUntil([&] { return opened == std::vector{true, false}; }));
    surface->open(document.value(), events);
    surface->close();
    settle();
    EXPECT_EQ(opened.size(), 2U) << "a closed document says nothing";
}

} // namespace orken
