#include "browser/Bed.h"

namespace orken {
namespace {

constexpr const char* kQuit = "quit other";

struct Bed : BrowserBed {
    Bed()
    {
        model->webView = made;
        desktop.runningApplications.add("other");
    }

    /// One redraw with that page; answers what came of it, the queue's items not included.
    std::vector<std::string> pass(const std::string& url)
    {
        desktop.browserViews.site = {{url, {}}};
        go(url);
        (void)desktop.journal.take();
        services.updatePass.runUpdatePass(*view, model);
        return desktop.journal.take();
    }
};

TEST(UpdatePass, guardsThePageThenReadsItsAddressThenChecks)
{
    EXPECT_THAT(Bed().pass("https://h/"),
                ElementsAre(HasSubstr("orken.shortcuts"), "print Gelen url https://h/", "print Host: h",
                            "print Path: /", "print No query items found.", kQuit));
}

TEST(UpdatePass, aViewWithoutAnAddressStartsNoCheck)
{
    Bed bed;
    EXPECT_THAT(bed.pass(""), ElementsAre(HasSubstr("orken.shortcuts")));
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.take(), testing::IsEmpty());
}

TEST(UpdatePass, aVideoIsUncoveredOnlyWithATextToShow)
{
    const std::string video = "https://h/course/playlist/1";
    const std::string working = "print That's working";
    const std::tuple<std::string, std::string, bool> passes[] = {
        {video, "print No query items found.", true},
        {video + "?hash=B6xUEGCyo%2FeXAqNDLYnlZw%3D%3D", working, true},
        {video + "?hash=B6xUEGCyo%2FeXAqNDLYnlZw%3D%3D", "getBoundingClientRect", false}, // removed: the pass ends here
        {video, working, true},                                                           // another one; the text stays
        {"https://h/course", "print No query items found.", true},
        {video, working, true}, // left meanwhile
    };
    Bed bed;
    for (const auto& [url, last, checks] : passes) {
        auto acts = bed.pass(url);
        EXPECT_EQ(acts.back() == kQuit, checks) << url;
        std::erase(acts, kQuit);
        EXPECT_THAT(acts.back(), HasSubstr(last)) << url;
        bed.desktop.loop.run();
    }
}

} // namespace
} // namespace orken
