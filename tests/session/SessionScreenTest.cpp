#include "browser/Bed.h"
#include "session/SessionScreens.h"

namespace orken {
namespace {

constexpr const char* kLogin = "https://site.example/accounts/Login";
constexpr const char* kVideo = "https://site.example/playlist/1?hash=B6xUEGCyo/eXAqNDLYnlZw==";
constexpr const char* kLoading = "Yükleniyor...";
constexpr const char* kMainPageButton = "ANASAYFAYI AÇ";
constexpr const char* kLoginExit = "Çıkış Yap";
constexpr const char* kStudent = "Öğrenci 4711";
constexpr const char* kQuestion = "alert Çıkış yapmak istediğinize emin misiniz?: ";

struct Bed : BrowserBed {
    explicit Bed(const std::string& link, Seconds loadTime = Seconds{0}, const InfoValue& version = "2.1")
    {
        desktop.bundle.values[kBundleShortVersionKey] = version;
        desktop.browserViews.site = {{link, {.loadTime = loadTime}}, {"https://site.example/", {}}, {kLogin, {}}};
        window->setContentView(screens.makeSessionScreen(link));
        desktop.loop.run();
    }

    [[nodiscard]] bool shows(const std::string& text) const { return desktop.showing(text) != nullptr; }

    SessionScreens screens{portsOf(desktop), simulated::kEndpoints, machine, services};
    std::shared_ptr<Window> window = desktop.windows.open("ORKEN");
};

TEST(SessionScreen, theOverlayOffersTheMainPageAfterFiveMinutes)
{
    Bed bed(kVideo, Seconds{400});
    bed.desktop.loop.advance(Seconds{300});
    EXPECT_TRUE(bed.shows(kLoading) && !bed.shows(kMainPageButton));
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_FALSE(bed.shows(kLoading));
    EXPECT_TRUE(bed.shows("SAYFANIN YÜKLENMESİ\nBEKLENENDEN UZUN SÜRDÜ"));
    bed.desktop.press(kMainPageButton);
    EXPECT_THAT(bed.desktop.journal.starting("load https://site.example/ "), testing::SizeIs(1));
    bed.desktop.loop.advance(Seconds{1000});
    EXPECT_TRUE(bed.shows(kLoading)) << "hidden, and never again slow";
}

TEST(SessionScreen, theExitButtonAsksFirst)
{
    const std::pair<const char*, std::vector<std::string>> cases[] = {{"Hayır", {kQuestion}},
                                                                      {"Evet", {kQuestion, "terminated"}}};
    for (const auto& [answer, acts] : cases) {
        Bed bed(kLogin);
        (void)bed.desktop.journal.take();
        bed.desktop.alerts.answerNext(answer);
        bed.desktop.press("Çıkış");
        EXPECT_EQ(bed.desktop.journal.take(), acts);
    }
}

TEST(SessionScreen, onlyAFinishedLoginPageHasAnExitButtonOfItsOwn)
{
    EXPECT_FALSE(Bed("https://site.example/accounts/login").shows(kLoginExit));
    Bed bed(kLogin, Seconds{5});
    EXPECT_FALSE(bed.shows(kLoginExit));
    bed.desktop.loop.advance(Seconds{5});
    bed.desktop.press(kLoginExit);
    EXPECT_EQ(bed.desktop.journal.acts().back(), "terminated");
}

TEST(SessionScreen, theVersionStandsInTheCorner)
{
    EXPECT_TRUE(Bed(kLogin).shows("Uygulama sürümü 2.1"));
    EXPECT_TRUE(Bed(kLogin, Seconds{5}, 2.1).shows("Uygulama sürümü alınamadı"));
}

TEST(SessionScreen, theWatermarkGoesWithItsPage)
{
    Bed bed(kVideo);
    EXPECT_TRUE(bed.shows(kStudent));
    bed.desktop.browserViews.latest->navigate(kLogin);
    bed.desktop.loop.advance(Seconds{1});
    EXPECT_FALSE(bed.shows(kStudent));
    for (const char* page : {kLogin, kVideo}) {
        bed.desktop.browserViews.latest->navigate(page);
        bed.desktop.loop.advance(Seconds{1});
        (void)bed.desktop.journal.take();
        bed.desktop.loop.advance(Seconds{20});
        EXPECT_THAT(bed.desktop.journal.starting("print X Position: "), testing::SizeIs(4)) << "of one timer";
    }
}

} // namespace
} // namespace orken
