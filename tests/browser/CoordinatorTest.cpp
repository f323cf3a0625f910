#include "browser/Bed.h"

namespace orken {

constexpr const char* kHome = "https://site.example/Home";
constexpr const char* kLogin = "https://site.example/Account/Login";

TEST(Coordinator, everyFinishedPageWritesTitleThenAddressThenFlag)
{
    BrowserBed bed;
    bed.desktop.browserViews.site = {{kHome, {.title = "Home"}}, {kLogin, {}}};
    std::vector<std::string> before;
    const auto subscription = bed.model->observe([&] {
        before.push_back(bed.model->pageTitle.get() + "|" + bed.model->link.get() + "|" +
                         (bed.model->didFinishLoading.get() ? "1" : "0"));
    });
    bed.go(kHome);
    EXPECT_THAT(before, ElementsAre("|first|0", "Home|first|0", std::string("Home|") + kHome + "|0"));
    EXPECT_TRUE(bed.model->hasExecuted) << "whatever the first page is";
    bed.go(kLogin);
    EXPECT_EQ(before.size(), 6U);
    EXPECT_EQ(bed.model->pageTitle.get(), "") << "a page without a title";
    EXPECT_EQ(bed.model->link.get(), kLogin);
    bed.coordinator->didFinishNavigation(*bed.desktop.browserViews.make());
    EXPECT_EQ(bed.model->link.get(), "") << "a view without an address";
}

TEST(Coordinator, failuresChangeNothing)
{
    BrowserBed bed;
    int writes = 0;
    const auto subscription = bed.model->observe([&] { ++writes; });
    bed.go("https://nobody.example/");
    bed.coordinator->didFailNavigation(*bed.view, platformError("browser", 1, "", "broken off"));
    EXPECT_EQ(writes, 0);
    EXPECT_FALSE(bed.model->hasExecuted);
}

TEST(Coordinator, acceptsNoChallengeButACertificate)
{
    BrowserBed bed;
    bed.desktop.browserViews.site = {{kHome, {.untrusted = true}}};
    bed.go(kHome);
    EXPECT_EQ(bed.model->link.get(), kHome);
    std::vector<ChallengeDisposition> answers;
    bed.coordinator->didReceiveAuthenticationChallenge(*bed.view, {},
                                                       [&](ChallengeDisposition given) { answers.push_back(given); });
    EXPECT_THAT(answers, ElementsAre(ChallengeDisposition::cancelAuthenticationChallenge));
}

TEST(Coordinator, onlyBlobsAreKeptBack)
{
    const std::tuple<std::optional<std::string>, NavigationPolicy, std::vector<std::string>> cases[] = {
        {"https://elsewhere.example/x", NavigationPolicy::allow, {"print Gelen data tipi https"}},
        {"data:text/plain,x", NavigationPolicy::allow, {"print Gelen data tipi data"}},
        {"about:blank", NavigationPolicy::allow, {"print Gelen data tipi about"}},
        {"BLOB:https://site.example/1", NavigationPolicy::allow, {"print Gelen data tipi BLOB"}},
        {"blob:https://site.example/1",
         NavigationPolicy::cancel,
         {"print Gelen data tipi blob", "print Veri çözülemedi."}},
        {"no-scheme", NavigationPolicy::cancel, {"print Gelen data tipi unknown"}},
        {std::nullopt, NavigationPolicy::cancel, {}},
    };
    for (const auto& [url, policy, printed] : cases) {
        BrowserBed bed;
        std::vector<NavigationPolicy> answers;
        bed.coordinator->decidePolicyForNavigationAction(*bed.view, {.requestUrl = url},
                                                         [&](NavigationPolicy given) { answers.push_back(given); });
        bed.desktop.loop.run();
        EXPECT_THAT(answers, ElementsAre(policy)) << url.value_or("none");
        EXPECT_EQ(bed.desktop.journal.starting("print "), printed);
    }
}

} // namespace orken
