#include "browser/Bed.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kEcho = "https://ip.example/";
constexpr const char* kLogin = "https://site.example/accounts/Login?ReturnUrl=%2F";
constexpr const char* kJson =
    R"([{"OsName": "mac", "DiskSerial": "C02ABC123XYZ", "CurrentDate": "2026-11-16T21:03:25.123Z", "Ip": "203.0.113.7"}])";

struct Bed : BrowserBed {
    Bed()
    {
        desktop.network.routes[kEcho] = {.body = "203.0.113.7\n"};
        desktop.browserViews.site = {{kLogin, {.title = "Login"}},
                                     {"https://site.example/accounts/login", {.title = "Login"}},
                                     {"https://site.example/Home?from=Login", {.title = "Home"}}};
    }

    /// What the first page brings about on the console and in the page, the requests' own line apart.
    [[nodiscard]] std::vector<std::string> acts()
    {
        desktop.loop.runBackground();
        desktop.loop.run();
        auto found = desktop.journal.starting("print ");
        const auto scripts = desktop.journal.starting("script\n");
        found.insert(found.end(), scripts.begin(), scripts.end());
        std::erase(found, "print Gelen data tipi https");
        return found;
    }
};

std::string scriptWith(const std::string& value)
{
    return "script\n"
           "    var param = document.createElement('input');\n"
           "    param.type = 'hidden';\n"
           "    param.value = '" +
           value +
           "';\n"
           "    param.name = 'param';\n"
           "    document.getElementById('loginform').appendChild(param);\n"
           "    $('.resetID').css('display','none');";
}

TEST(LoginParameter, theFirstLoginPageGetsTheFieldOnce)
{
    Bed bed;
    bed.go(kLogin);
    EXPECT_THAT(bed.desktop.journal.starting("GET "), ElementsAre(std::string("GET ") + kEcho));
    EXPECT_THAT(bed.acts(), ElementsAre(std::string("print json: ") + kJson, scriptWith("")));
    bed.go(kLogin);
    EXPECT_THAT(bed.desktop.journal.starting("GET "), testing::SizeIs(1));
    EXPECT_THAT(bed.desktop.journal.starting("script"), testing::SizeIs(1));
}

TEST(LoginParameter, onlyAFirstPageWithLoginInItsAddressGetsIt)
{
    const std::pair<const char*, std::size_t> cases[] = {{"https://site.example/accounts/login", 0},
                                                         {"https://site.example/Home?from=Login", 1}};
    for (const auto& [first, requests] : cases) {
        Bed bed;
        bed.go(first);
        bed.go(kLogin);
        EXPECT_EQ(bed.desktop.journal.starting("GET ").size(), requests) << first;
    }
}

TEST(LoginParameter, whatIsMissingIsWrittenAsItIsKnown)
{
    struct Case {
        simulated::Route echo;
        std::optional<std::string> serial;
        const char* ends = "";
    };

    const Case cases[] = {
        {{.body = "\xFF\xFE"}, "S\"1", R"("DiskSerial": "S"1", "CurrentDate": "2026-11-16T21:03:25.123Z", "Ip": ""}])"},
        {{.hasBody = false}, "", R"("DiskSerial": "", "CurrentDate": "2026-11-16T21:03:25.123Z", "Ip": ""}])"},
        {{.body = " \"x\u2028"},
         std::nullopt,
         R"("DiskSerial": "Unknown", "CurrentDate": "2026-11-16T21:03:25.123Z", "Ip": ""x"}])"},
    };
    for (const auto& [echo, serial, ends] : cases) {
        Bed bed;
        bed.desktop.network.routes[kEcho] = echo;
        bed.desktop.hardware.serial = serial;
        bed.go(kLogin);
        EXPECT_THAT(bed.acts(), ElementsAre(testing::EndsWith(ends), scriptWith("")));
    }
}

TEST(LoginParameter, withoutAnAnswerThereIsALineAndNoField)
{
    Bed bed;
    bed.desktop.network.routes.clear();
    bed.go(kLogin);
    EXPECT_THAT(bed.acts(), ElementsAre(std::string("print Error fetching IP address: ") + kEcho + ": refused"));
}

TEST(LoginParameter, nothingHappensWhenTheDelegateHasGone)
{
    for (const bool fails : {false, true}) {
        Bed bed;
        if (fails) {
            bed.desktop.network.routes.clear();
        }
        bed.go(kLogin);
        bed.coordinator.reset();
        EXPECT_THAT(bed.acts(), IsEmpty());
    }
}

TEST(LoginParameter, aScriptThatFailsIsReported)
{
    Bed bed;
    bed.view->onScript = [](const auto&) { return ScriptResult(platformError("script", 699, "", "no form")); };
    bed.go(kLogin);
    EXPECT_THAT(bed.acts(), Contains("print JavaScript execution failed: no form"));
}

TEST(LoginParameter, theViewIsLetGoOnTheMainThreadAlone)
{
    Bed bed;
    bed.go(kLogin);
    const std::weak_ptr<BrowserView> view = bed.view;
    bed.desktop.browserViews.latest.reset();
    bed.made.reset();
    bed.view.reset();
    bed.coordinator.reset();
    bed.desktop.loop.runBackground();
    EXPECT_FALSE(view.expired());
    bed.desktop.loop.run();
    EXPECT_TRUE(view.expired());
}

} // namespace
} // namespace orken
