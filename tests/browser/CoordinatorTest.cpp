#include "browser/Bed.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;

constexpr const char* kHome = "https://site.example/Home";
constexpr const char* kLogin = "https://site.example/Account/Login";

using Bed = BrowserBed;

TEST(Coordinator, writesTitleThenAddressThenTheFlagForEveryFinishedPage)
{
    Bed bed;
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
}

TEST(Coordinator, aViewWithoutAddressAndTitleGivesEmptyTexts)
{
    Bed bed;
    bed.coordinator->didFinishNavigation(*bed.view);
    EXPECT_EQ(bed.model->link.get(), "");
    EXPECT_TRUE(bed.model->didFinishLoading.get());
}

TEST(Coordinator, failuresChangeNothing)
{
    Bed bed;
    int writes = 0;
    const auto subscription = bed.model->observe([&] { ++writes; });
    bed.go("https://nobody.example/");
    bed.coordinator->didFailNavigation(*bed.view, platformError("browser", 1, "", "broken off"));
    EXPECT_EQ(writes, 0);
    EXPECT_FALSE(bed.model->hasExecuted);
}

TEST(Coordinator, acceptsEveryCertificateAndCancelsEveryOtherChallenge)
{
    Bed bed;
    bed.desktop.browserViews.site = {{"https://old.example/", {.redirect = kHome}},
                                     {kHome, {.title = "Home", .untrusted = true}}};
    bed.go("https://old.example/");
    EXPECT_EQ(bed.model->link.get(), kHome);

    std::optional<ChallengeDisposition> answer;
    bed.coordinator->didReceiveAuthenticationChallenge(*bed.view, {}, [&](auto given) { answer = given; });
    EXPECT_EQ(answer, ChallengeDisposition::cancelAuthenticationChallenge);
}

TEST(Coordinator, letsEverythingThroughButBlobsAndWhatHasNoScheme)
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
        Bed bed;
        std::vector<NavigationPolicy> answers;
        bed.coordinator->decidePolicyForNavigationAction(*bed.view, {.requestUrl = url},
                                                         [&](NavigationPolicy given) { answers.push_back(given); });
        bed.desktop.loop.run();
        EXPECT_THAT(answers, ElementsAre(policy)) << url.value_or("none");
        EXPECT_EQ(bed.desktop.journal.starting("print "), printed);
    }
}

} // namespace
} // namespace orken
