#include "browser/SwiftUIWebView.h"

#include "browser/Bed.h"

namespace orken {
namespace {

constexpr const char* kPage = "https://site.example/";

std::vector<std::string> actsOfMaking(const std::string& link)
{
    BrowserBed bed;
    bed.desktop.browserViews.site = {{kPage, {}}};
    const auto model = std::make_shared<WebViewModel>(link);
    SwiftUIWebView host(model, State<bool>({}, false), bed.desktop.browserViews.make(), bed.services.forView());
    const SwiftUIWebView::Context context{.coordinator = host.makeCoordinator()};
    EXPECT_EQ(host.makeNSView(context), model->webView);
    bed.desktop.loop.run();
    return bed.desktop.journal.take();
}

TEST(SwiftUIWebView, theFirstRequestHasTheSettings)
{
    const std::string agent = "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) ApleWebKit/405.1.15 (KHTML, like Gecko) "
                              "Versions/16.6 Safari/405.1.15";
    const std::vector<std::string> acts{"print Gelen data tipi https",
                                        "load https://site.example/ within 60 s",
                                        "link previews on",
                                        "page scripts on",
                                        "developer extras on",
                                        "request https://site.example/ as " + agent};
    EXPECT_THAT(actsOfMaking(kPage), testing::IsSupersetOf(acts));
}

TEST(SwiftUIWebView, anInvalidLinkIsNotLoaded)
{
    for (const char* link : {"", "https://site.example/?param=A B"}) {
        const auto acts = actsOfMaking(link);
        EXPECT_THAT(acts, testing::Not(testing::Contains(StartsWith("load"))));
        EXPECT_THAT(acts, testing::Contains("user script of the main frame: document.addEventListener(\"contextmenu\", "
                                            "function(event) {\n    event.preventDefault();\n});"));
    }
}

} // namespace
} // namespace orken
