#include "animation/LottieView.h"
#include "simulated/SimulatedDesktop.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using simulated::SimulatedAnimationSurface;
using testing::Each;
using testing::ElementsAre;
using testing::Le;

constexpr const char* kUrl = "https://animation.example/a.json";
// Two seconds of 30 frames each.
constexpr const char* kDocument = R"({"w":300,"h":200,"fr":30,"ip":0,"op":60,"layers":[]})";

/// A screen that shows one animation and hands its values over anew on each redraw.
class Screen final : public View {
public:
    Screen(LottieView::Values shown, const AnimationServices& services)
        : redraws(makeState(0)), lottie(std::move(shown)), services_(services)
    {
    }

    [[nodiscard]] Element body() override
    {
        (void)redraws.get();
        return ZStack({LottieView::element(lottie, services_)}).opacity(isShown ? 1 : 0);
    }

    State<int> redraws;
    LottieView::Values lottie;
    bool isShown = true;

private:
    AnimationServices services_;
};

struct Bed {
    explicit Bed(LULoadType type, LottieLoopMode loopMode = LottieLoopMode::playOnce(), bool isControlEnabled = false,
                 LUContentMode contentMode = LUContentMode::fit)
        : state(std::make_shared<LUStateData>(std::move(type), 1.0, loopMode, std::nullopt, isControlEnabled,
                                              contentMode))
    {
        desktop.network.routes[kUrl] = {.body = kDocument, .delay = Seconds{1}};
        desktop.files.addFile("/resources/wait.json", kDocument);
        desktop.files.addFile("/elsewhere/wait.json", kDocument);
        desktop.loop.addSource([this] {
            desktop.loop.runBackground();
            return false;
        });
    }

    void show(double value = 0)
    {
        auto note = [this](const char* event) {
            return [this, event](bool flag) { events.push_back(std::string(event) + (flag ? " true" : " false")); };
        };
        auto content = std::make_unique<Screen>(LottieView::Values{state, note("completed"), note("downloaded"), value},
                                                animationServices(portsOf(desktop)));
        screen = content.get();
        window->setContentView(std::move(content));
        run(Seconds{0});
        window->content().layOut({.width = 300, .height = 300});
        run(Seconds{0});
    }

    void redraw(double value)
    {
        screen->lottie.value = value;
        screen->redraws.set(screen->redraws.get() + 1);
        run(Seconds{0});
    }

    void run(Seconds duration) { desktop.loop.advance(duration); }

    [[nodiscard]] SimulatedAnimationSurface& surface() const { return *desktop.animationSurfaces.latest; }

    std::shared_ptr<LUStateData> state;
    std::vector<std::string> events;
    simulated::SimulatedDesktop desktop;
    simulated::SimulatedWindows::WindowPtr window = desktop.windows.open("animation");
    Screen* screen = nullptr;
};

TEST(AnimationState, isEqualWhenItDescribesTheSame)
{
    const auto make = [](LULoadType type, std::optional<LUProgressRange> range = {}, double speed = 1) {
        return LUStateData(std::move(type), speed, LottieLoopMode::loop(), range, false, LUContentMode::fit);
    };
    EXPECT_TRUE(LUStateData() == make(LULoadType::name("", ResourceBundle::main())));
    EXPECT_TRUE(make(LULoadType::loadedFrom(kUrl), LUProgressRange{0, 1}) == make(LULoadType::loadedFrom(kUrl)));
    EXPECT_FALSE(make(LULoadType::loadedFrom(kUrl)) == make(LULoadType::filepath(kUrl)));
    EXPECT_FALSE(make(LULoadType::name("", ResourceBundle::at("/b"))) == LUStateData());
    EXPECT_FALSE(make(LULoadType::name("", ResourceBundle::main()), {}, 2) == LUStateData());
    LUStateData controlled;
    controlled.isControlEnabled = true;
    EXPECT_FALSE(controlled == LUStateData());
}

TEST(AnimationViews, playADownloadAfterItsFirstFrameHasBeenDrawn)
{
    Bed bed(LULoadType::loadedFrom(kUrl));
    bed.show();
    bed.run(Seconds{1});
    EXPECT_TRUE(bed.surface().opened.has_value() && bed.events.empty()) << "not before there is a picture";
    bed.run(Seconds{0.5});
    EXPECT_THAT(bed.events, ElementsAre("downloaded true"));
    EXPECT_TRUE(bed.surface().isTicking());
    bed.run(Seconds{2});
    EXPECT_THAT(bed.events, ElementsAre("downloaded true", "completed true"));
    EXPECT_EQ(bed.surface().frame, 59);
    EXPECT_FALSE(bed.surface().isTicking()) << "a finished play costs nothing";
    EXPECT_EQ(bed.surface().placement, (Rect{.width = 300, .height = 300}));
    EXPECT_THAT(bed.surface().frames, Each(Le(59)));
    EXPECT_TRUE(std::is_sorted(bed.surface().frames.begin(), bed.surface().frames.end()));
}

TEST(AnimationViews, tellOnceOfAnUnusableDownload)
{
    using enum SimulatedAnimationSurface::Renderer;
    const std::tuple<const char*, simulated::Route, SimulatedAnimationSurface::Renderer> cases[] = {
        {"refused", {.error = platformError("network", 2, "", "refused")}, works},
        {"an error page", {.body = "<html></html>"}, works},
        {"nothing at all", {.hasBody = false}, works},
        {"the renderer gives up", {.body = kDocument}, refuses},
    };
    for (const auto& [name, route, renderer] : cases) {
        Bed bed(LULoadType::loadedFrom(kUrl), LottieLoopMode::loop());
        bed.desktop.network.routes[kUrl] = route;
        bed.desktop.animationSurfaces.renderer = renderer;
        bed.show();
        bed.run(Seconds{5});
        EXPECT_THAT(bed.events, ElementsAre("downloaded false", "completed false")) << name;
        EXPECT_TRUE(!bed.surface().frame && !bed.surface().isTicking()) << name;
    }
}

TEST(AnimationViews, reportEvenMissingFilesAsLoaded)
{
    const auto mainBundle = ResourceBundle::main();
    using enum SimulatedAnimationSurface::Renderer;
    const std::tuple<LULoadType, SimulatedAnimationSurface::Renderer, bool> cases[] = {
        {LULoadType::name("wait", mainBundle), works, true},
        {LULoadType::name("wait", mainBundle), refuses, true},
        {LULoadType::name("wait", ResourceBundle::at("/elsewhere")), works, true},
        {LULoadType::name("", mainBundle), works, false},
        {LULoadType::name("../elsewhere/wait", mainBundle), works, false},
        {LULoadType::filepath("/elsewhere/wait.json"), works, true},
        {LULoadType::filepath("/nowhere.json"), works, false},
    };
    for (const auto& [type, renderer, isThere] : cases) {
        Bed bed(type);
        bed.desktop.animationSurfaces.renderer = renderer;
        bed.show();
        EXPECT_EQ(bed.events.front(), "downloaded true");
        EXPECT_EQ(bed.surface().opened.has_value(), isThere);
        bed.run(Seconds{3});
        EXPECT_THAT(bed.events, ElementsAre("downloaded true",
                                            isThere && renderer == works ? "completed true" : "completed false"));
    }
}

TEST(AnimationViews, showTheProgressOfACallerWhoHasTakenControl)
{
    Bed bed(LULoadType::loadedFrom(kUrl), LottieLoopMode::loop(), false, LUContentMode::fill);
    bed.show();
    bed.run(Seconds{2});
    EXPECT_EQ(bed.surface().mode, LottieContentMode::scaleAspectFill);
    bed.redraw(0);
    EXPECT_TRUE(bed.surface().isTicking()) << "0 takes no control";
    bed.redraw(0.5);
    EXPECT_EQ(bed.surface().frame, 30);
    EXPECT_FALSE(bed.surface().isTicking());
    bed.redraw(0);
    bed.run(Seconds{1});
    EXPECT_EQ(bed.surface().frame, 0);
    EXPECT_THAT(bed.events, ElementsAre("downloaded true", "completed false"));

    Bed controlled(LULoadType::name("wait", ResourceBundle::main()), LottieLoopMode::loop(), true);
    controlled.show(0.25);
    controlled.run(Seconds{2});
    EXPECT_THAT(controlled.surface().frames, Each(15));
    EXPECT_THAT(controlled.events, ElementsAre("downloaded true"));
}

TEST(AnimationViews, endThePlayOnceWhenTheRendererFailsLater)
{
    Bed bed(LULoadType::loadedFrom(kUrl), LottieLoopMode::loop());
    bed.show();
    bed.run(Seconds{2});
    bed.surface().fail();
    bed.run(Seconds{5});
    EXPECT_THAT(bed.events, ElementsAre("downloaded true", "completed false"));
    EXPECT_FALSE(bed.surface().isTicking());
}

TEST(AnimationViews, goOnWhereTheyWereWhenTheyCanBeSeenAgain)
{
    Bed bed(LULoadType::loadedFrom(kUrl), LottieLoopMode::loop());
    bed.show();
    bed.run(Seconds{1.5});
    bed.screen->isShown = false;
    bed.redraw(0);
    const auto shown = bed.surface().frames;
    bed.run(Seconds{10});
    EXPECT_EQ(bed.surface().frames, shown);
    bed.screen->isShown = true;
    bed.redraw(0);
    bed.run(Seconds{0.02});
    EXPECT_LE(*bed.surface().frame - shown.back(), 1);
}

TEST(AnimationViews, fitTheirHostAfterAResize)
{
    Bed bed(LULoadType::loadedFrom(kUrl));
    bed.show();
    bed.surface().resize({.width = 120, .height = 80});
    EXPECT_EQ(bed.surface().placement, (Rect{.width = 120, .height = 80}));
    bed.redraw(0);
    EXPECT_EQ(bed.surface().placement, (Rect{.width = 300, .height = 300}));
    bed.desktop.notifications.post(NotificationName::windowDidResize);
    EXPECT_EQ(bed.surface().placement, (Rect{.width = 120, .height = 80}));
}

TEST(AnimationViews, interruptTheirPlayWithTheirScreensEnd)
{
    Bed bed(LULoadType::loadedFrom(kUrl), LottieLoopMode::loop());
    bed.show();
    bed.run(Seconds{2});
    const std::weak_ptr<SimulatedAnimationSurface> surface = std::exchange(bed.desktop.animationSurfaces.latest, {});
    std::vector<bool> completed;
    const auto kept = bed.state->onCompleted.subscribe([&](bool finished) { completed.push_back(finished); });
    bed.window->dropContent();
    bed.run(Seconds{1});
    EXPECT_TRUE(surface.expired());
    EXPECT_THAT(completed, ElementsAre(false));
    EXPECT_THAT(bed.events, ElementsAre("downloaded true")) << "nobody is called who has gone";
}

} // namespace
} // namespace orken
