// What the session screen costs the main thread: one update pass of the page scripts, and one frame of the waiting
// animation at 300 x 300 points, the toolkit's drawing apart. Run on a virtual desktop; the argument is an animation
// document. Prints one JSON object, times in microseconds.

#include "animation/DocumentChecker.h"
#include "animation/LottieView.h"
#include "browser/BrowserServices.h"
#include "linux/Desktop.h"
#include "linux/services/InstalledFolders.h"

#include <gtk/gtk.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using namespace orken;

constexpr int kPasses = 2000;
constexpr int kFrames = 600;
constexpr unsigned kPatience = 120;
constexpr const char* kVideoPage =
    "https://site.example/course/video/playlist/4?dnz=VeK%2BNwW6sUUS2r4LbCZxfmE%2B919zNpO"
    "E%2Fot%2F9tiKF4yEXpSCmkyDgSK%2B60hJSVJQ&hash=%2FVn1jOw8U5hDiCY7fdWXIrTPKA4uBWu1Vpr"
    "wdHtpICI%3D";

double threadMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

template <class Work>
double costOf(const Work& work)
{
    const double before = threadMicroseconds();
    work();
    return threadMicroseconds() - before;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

/// A page whose engine takes scripts and never answers.
class SilentPage final : public BrowserView {
public:
    [[nodiscard]] NativeHandle* native() override { return nullptr; }

    void setNavigationDelegate(std::weak_ptr<NavigationDelegate>) override {}

    void load(const UrlRequest&) override {}

    void configure(const BrowserConfiguration&) override {}

    [[nodiscard]] std::optional<std::string> title() const override { return "page"; }

    [[nodiscard]] std::optional<std::string> url() const override { return kVideoPage; }

    void evaluateJavaScript(const std::string&, ScriptCompletion) override {}

    void callAsyncJavaScript(const std::string&, ScriptCompletion) override {}
};

/// Passes over a video page that has been handled, with their answers, lines going to a file.
std::vector<double> measurePasses(desktop::Desktop& desktop)
{
    const Endpoints endpoints{.bundleIdentifier = "com.orken.bench"};
    MachineServices machine(portsOf(desktop), endpoints);
    BrowserServices browser(portsOf(desktop), endpoints, machine);
    const auto page = std::make_shared<SilentPage>();
    const auto model = std::make_shared<WebViewModel>(kVideoPage);
    model->webView = page;
    model->videoUrl = kVideoPage;
    model->removedIdentity = true;
    const ScriptResult geometry(
        std::optional<ScriptValue>(ScriptText(R"({"maxWidth":960,"maxHeight":540,"xPosition":152,"yPosition":190})")));
    std::vector<double> costs;
    for (int i = 0; i < kPasses; ++i) {
        costs.push_back(costOf([&] {
            browser.updatePass.runUpdatePass(*page, model);
            browser.videoPage.handleVideoGeometry(geometry);
        }));
    }
    return costs;
}

/// A desktop's surface whose ticks are timed; what they show is timed with them.
class TimedSurface final : public AnimationSurface {
public:
    TimedSurface(std::shared_ptr<AnimationSurface> surface, std::vector<double>& ticks)
        : surface_(std::move(surface)), ticks_(ticks)
    {
    }

    [[nodiscard]] NativeHandle* native() override { return surface_->native(); }

    [[nodiscard]] Size bounds() const override { return surface_->bounds(); }

    void setOnResize(std::function<void()> callback) override { surface_->setOnResize(std::move(callback)); }

    void open(AnimationDocument document, Events events) override
    {
        surface_->open(std::move(document), std::move(events));
    }

    void close() override { surface_->close(); }

    void setPlacement(const Rect& frame, LottieContentMode mode) override { surface_->setPlacement(frame, mode); }

    void show(int frame, int next) override { surface_->show(frame, next); }

    void setFrameTick(FrameTick tick) override
    {
        auto timed = [this, tick](Seconds elapsed) { ticks_.push_back(costOf([&] { tick(elapsed); })); };
        surface_->setFrameTick(tick ? FrameTick(timed) : FrameTick());
    }

private:
    std::shared_ptr<AnimationSurface> surface_;
    std::vector<double>& ticks_;
};

class TimedSurfaces final : public AnimationSurfaces {
public:
    TimedSurfaces(AnimationSurfaces& surfaces, std::vector<double>& times) : surfaces_(surfaces), ticks(times) {}

    [[nodiscard]] Outcome<AnimationDocument> prepare(AnimationDocument document) const override
    {
        return surfaces_.prepare(std::move(document));
    }

    [[nodiscard]] std::shared_ptr<AnimationSurface> make(Size size) override
    {
        return std::make_shared<TimedSurface>(surfaces_.make(size), ticks);
    }

private:
    AnimationSurfaces& surfaces_;

public:
    std::vector<double>& ticks;
};

class Screen final : public View {
public:
    Screen(std::shared_ptr<LUStateData> state, const AnimationServices& services)
        : state_(std::move(state)), services_(services)
    {
    }

    [[nodiscard]] Element body() override
    {
        const auto ignored = [](bool) {};
        return LottieView::element({.state = state_, .onCompleted = ignored, .onDownloaded = ignored}, services_)
            .frame({.width = 300, .height = 300});
    }

private:
    std::shared_ptr<LUStateData> state_;
    AnimationServices services_;
};

class Nobody final : public ApplicationDelegate {
    void applicationWillTerminate() override {}
};

/// Ticks of a playing animation in a window, each with what it shows, and how many there were a second.
std::pair<std::vector<double>, double> measureTicks(desktop::Desktop& desktop, const std::string& file)
{
    std::vector<double> ticks;
    TimedSurfaces surfaces(desktop.animationSurfaces, ticks);
    const AnimationServices services{.surfaces = surfaces,
                                     .urlSession = desktop.urlSession,
                                     .mainQueue = desktop.mainQueue,
                                     .files = desktop.files,
                                     .bundle = desktop.bundle,
                                     .notifications = desktop.notifications};
    const auto state = std::make_shared<LUStateData>(LULoadType::filepath(file), 1.0, LottieLoopMode::loop(),
                                                     std::nullopt, false, LUContentMode::fit);
    Nobody nobody;
    (void)desktop.application.launch(
        nobody, {.title = "bench", .content = [&] { return std::make_unique<Screen>(state, services); }});
    while (ticks.size() < 60) {
        g_main_context_iteration(nullptr, TRUE);
    }
    ticks.clear();
    const gint64 began = g_get_monotonic_time();
    while (ticks.size() < kFrames) {
        g_main_context_iteration(nullptr, TRUE);
    }
    return {ticks, kFrames * 1e6 / static_cast<double>(g_get_monotonic_time() - began)};
}

/// Asking for a frame, waiting in the main loop, and making a texture of the answer.
std::vector<double> measureFrames(const std::string& json)
{
    constexpr guint32 kExtent = 300;
    std::vector<double> costs;
    bool drawn = false;
    desktop::RendererProcess renderer(desktop::modulesFolder() / "orken-animation-renderer", json,
                                      {.drawn = [&] { drawn = true; }, .failed = [] { std::abort(); }});
    for (guint32 frame = 0; frame < kFrames; ++frame) {
        drawn = false;
        costs.push_back(costOf([&] {
            renderer.request({.frame = frame % 60, .width = kExtent, .height = kExtent});
            while (!drawn) {
                g_main_context_iteration(nullptr, TRUE);
            }
            GBytes* bytes = g_bytes_new(renderer.pixels(), std::size_t{kExtent} * kExtent * 4);
            g_object_unref(gdk_memory_texture_new(kExtent, kExtent, GDK_MEMORY_B8G8R8A8_PREMULTIPLIED, bytes,
                                                  std::size_t{kExtent} * 4));
            g_bytes_unref(bytes);
        }));
    }
    return costs;
}

} // namespace

int main(int count, char** arguments)
{
    const auto lines = std::filesystem::temp_directory_path() / ("orken-bench-" + std::to_string(getpid()));
    const int output = dup(STDOUT_FILENO);
    if (count != 2 || !std::freopen(lines.c_str(), "w", stdout)) {
        std::fputs("usage: session_costs ANIMATION\n", stderr);
        return EXIT_FAILURE;
    }
    // A figure that does not come ends this program.
    alarm(kPatience);
    std::ifstream file(arguments[1]);
    const std::string text{std::istreambuf_iterator<char>(file), {}};

    gtk_init();
    desktop::Desktop desktop({.bundleIdentifier = "com.orken.bench", .version = "1.0"});
    std::optional<AnimationDocument> document;
    const double check = costOf([&] { document = usableAnimationDocument(text, desktop.animationSurfaces).value(); });
    auto passes = measurePasses(desktop);
    const auto [ticks, perSecond] = measureTicks(desktop, std::filesystem::absolute(arguments[1]));
    const auto frames = measureFrames(document->json);
    std::filesystem::remove(lines);
    dprintf(output,
            R"({"pass median": %.1f, "pass longest": %.1f, "tick median": %.1f, "tick longest": %.1f, )"
            R"("ticks a second": %.1f, "frame and texture median": %.1f, "check of the document": %.1f})"
            "\n",
            median(passes), *std::max_element(passes.begin(), passes.end()), median(ticks),
            *std::max_element(ticks.begin(), ticks.end()), perSecond, median(frames), check);
    std::_Exit(EXIT_SUCCESS);
}
