#include "browser/Bed.h"
#include "session/SessionScreens.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kLogin = "https://site.example/accounts/Login";
constexpr const char* kVideo = "https://site.example/playlist/1?hash=B6xUEGCyo/eXAqNDLYnlZw==";
constexpr const char* kLoading = "Yükleniyor...";
constexpr const char* kMainPageButton = "ANASAYFAYI AÇ";
constexpr const char* kCaption = "Uygulama sürümü 2.1";

struct Bed : BrowserBed {
    explicit Bed(const std::string& link, Seconds loadTime = Seconds{0}, const InfoValue& version = "2.1")
    {
        desktop.bundle.values[kBundleShortVersionKey] = version;
        desktop.browserViews.site = {{link, {.title = "page", .loadTime = loadTime}}, {"https://site.example/", {}}};
        window->makeKeyAndOrderFront();
        window->setContentView(screens.makeSessionScreen(link));
        desktop.loop.run();
    }

    [[nodiscard]] bool shows(const std::string& text) const { return desktop.showing(text) != nullptr; }

    /// The lines of the session screen itself, from now on for so long.
    std::vector<std::string> linesFor(Seconds duration)
    {
        (void)desktop.journal.take();
        desktop.loop.advance(duration);
        auto lines = desktop.journal.starting("print X Position: ");
        std::erase_if(lines, [](const std::string& line) { return line.find("Optional") != std::string::npos; });
        return lines;
    }

    SessionScreens screens{portsOf(desktop), simulated::kEndpoints, machine, services};
    std::shared_ptr<Window> window = desktop.windows.makeWindow({.width = 1920, .height = 1080}, 15);
};

TEST(SessionScreen, theOverlayWaitsForTheFirstPageAndOffersTheMainPageAfterFiveMinutes)
{
    Bed bed(kVideo, Seconds{400});
    bed.desktop.loop.advance(Seconds{300});
    EXPECT_TRUE(bed.shows(kLoading) && !bed.shows(kMainPageButton));
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_FALSE(bed.shows(kLoading));
    EXPECT_TRUE(bed.shows("SAYFANIN YÜKLENMESİ\nBEKLENENDEN UZUN SÜRDÜ"));
    bed.desktop.press(kMainPageButton);
    EXPECT_THAT(bed.desktop.journal.starting("load https://site.example/ "), testing::SizeIs(1));
    bed.desktop.loop.advance(Seconds{2});
    EXPECT_TRUE(bed.shows(kLoading)) << "counted from the start again, and hidden";
    bed.desktop.loop.advance(Seconds{1000});
    EXPECT_TRUE(bed.shows(kLoading)) << "never again slow";
}

TEST(SessionScreen, theExitButtonAsksAndTheLoginPagesOwnDoesNot)
{
    for (const char* answer : {"Hayır", "Evet"}) {
        Bed bed(kLogin);
        EXPECT_TRUE(bed.shows(kCaption));
        (void)bed.desktop.journal.take();
        bed.desktop.alerts.answerNext(answer);
        bed.desktop.press("Çıkış");
        std::vector<std::string> expected{"alert Çıkış yapmak istediğinize emin misiniz?: "};
        if (std::string(answer) == "Evet") {
            expected.emplace_back("terminated");
        }
        EXPECT_EQ(bed.desktop.journal.take(), expected);
    }
    Bed bed(kLogin, Seconds{5});
    EXPECT_FALSE(bed.shows("Çıkış Yap")) << "not before the page has finished";
    bed.desktop.loop.advance(Seconds{5});
    bed.desktop.press("Çıkış Yap");
    EXPECT_THAT(bed.desktop.journal.take().back(), "terminated");
    EXPECT_FALSE(Bed("https://site.example/accounts/login").shows("Çıkış Yap"));
    EXPECT_TRUE(Bed(kLogin, Seconds{5}, 2.1).shows("Uygulama sürümü alınamadı"));
}

TEST(SessionScreen, theWatermarkShowsTheDecryptedTextAndMovesEveryFiveSeconds)
{
    Bed bed(kVideo);
    EXPECT_TRUE(bed.shows("Öğrenci 4711"));
    EXPECT_THAT(bed.linesFor(Seconds{4.9}), IsEmpty());
    EXPECT_THAT(bed.linesFor(Seconds{10}),
                ElementsAre("print X Position: 50.0, Y Position: 70.0", "print X Position: 50.0, Y Position: 70.0"));
    const std::tuple<Rect, std::optional<Size>, std::vector<std::string>> cases[] = {
        {{.width = 1920, .height = 1080}, {}, {"print X Position: 910.0, Y Position: 1030.0"}},
        {{.width = 1920, .height = 1080}, Size{1920, 1080}, {"print X Position: 1870.0, Y Position: 1030.0"}},
        {{.width = 1920, .height = 1080}, Size{960, 540}, {"print X Position: 910.0, Y Position: 490.0"}},
        {{.width = 200, .height = 120}, {}, {"print X Position: 50.0, Y Position: 70.0"}},
        {{.width = 199, .height = 120}, {}, {}},
        {{.width = 1920, .height = 1080}, Size{960, 119}, {}},
    };
    bed.desktop.random.part = 1;
    for (const auto& [screen, video, lines] : cases) {
        bed.desktop.screens.frame = screen;
        bed.services.pageValues.videoMaxWidth = video ? std::optional(video->width) : std::nullopt;
        bed.services.pageValues.videoMaxHeight = video ? std::optional(video->height) : std::nullopt;
        EXPECT_EQ(bed.linesFor(Seconds{5}), lines) << screen.width;
    }
    bed.desktop.screens.frame.reset();
    (void)bed.linesFor(Seconds{5});
    EXPECT_THAT(bed.desktop.journal.starting("print Ekran"), ElementsAre("print Ekran boyutları alınamadı."));
}

TEST(SessionScreen, theWatermarkGoesWithItsPageAndItsTimerIsReplacedWithTheNext)
{
    Bed bed(kVideo);
    bed.desktop.browserViews.site = {{kLogin, {}}, {kVideo, {}}};
    bed.desktop.browserViews.latest->navigate(kLogin);
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_FALSE(bed.shows("Öğrenci 4711"));
    EXPECT_EQ(bed.linesFor(Seconds{10}).size(), 2U) << "moved all the same";
    bed.desktop.browserViews.latest->navigate(kVideo);
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_EQ(bed.linesFor(Seconds{20}).size(), 4U);
}

} // namespace
} // namespace orken
