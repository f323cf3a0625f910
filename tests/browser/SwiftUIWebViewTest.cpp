#include "browser/SwiftUIWebView.h"

#include "browser/Bed.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

constexpr const char* kPage = "https://site.example/";

std::vector<std::string> actsOfMaking(const std::string& link)
{
    BrowserBed bed;
    simulated::SimulatedDesktop& desktop = bed.desktop;
    (void)desktop.journal.take();
    desktop.browserViews.site = {{kPage, {.title = "page"}}};
    const auto model = std::make_shared<WebViewModel>(link);
    const auto made = desktop.browserViews.make();
    SwiftUIWebView host(model, State<bool>({}, false), made, bed.services.forView());
    const SwiftUIWebView::Context context{.coordinator = host.makeCoordinator()};
    EXPECT_EQ(host.makeNSView(context), made);
    EXPECT_EQ(model->webView, made);
    desktop.loop.run();
    EXPECT_EQ(model->didFinishLoading.get(), link == kPage) << "the coordinator is the delegate";
    return desktop.journal.acts();
}

TEST(SwiftUIWebView, setsTheDelegateLoadsTheLinkAndThenConfiguresOnce)
{
    const std::string agent = "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) ApleWebKit/405.1.15 (KHTML, like Gecko) "
                              "Versions/16.6 Safari/405.1.15";
    ASSERT_EQ(agent.size(), 117U);
    EXPECT_THAT(actsOfMaking(kPage),
                ElementsAre("browser view", "navigation delegate", "load https://site.example/ within 60 s",
                            "user agent " + agent, "link previews on", "page scripts on", "developer extras on",
                            "user script of the main frame: document.addEventListener(\"contextmenu\", "
                            "function(event) {\n    event.preventDefault();\n});",
                            "print Gelen data tipi https", "request https://site.example/ as " + agent));
}

TEST(SwiftUIWebView, anInvalidLinkLoadsNothingAndConfiguresAllTheSame)
{
    for (const char* link : {"", "https://site.example/?param=A B"}) {
        const auto acts = actsOfMaking(link);
        EXPECT_THAT(acts, Not(Contains(StartsWith("load"))));
        EXPECT_THAT(acts, Contains(StartsWith("user script")));
    }
}

} // namespace
} // namespace orken
