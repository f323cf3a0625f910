#include "browser/Bed.h"

namespace orken {
namespace {

constexpr const char* kEcho = "https://ip.example/";
constexpr const char* kLogin = "https://site.example/accounts/Login?ReturnUrl=%2F";
constexpr const char* kOtherCase = "https://site.example/accounts/login";
constexpr const char* kHome = "https://site.example/Home?from=Login";
constexpr const char* kDate = "2026-11-16T21:03:25.123Z";

struct Bed : BrowserBed {
    Bed()
    {
        desktop.network.routes[kEcho] = {.body = "203.0.113.7\n"};
        desktop.browserViews.site = {{kLogin, {}}, {kOtherCase, {}}, {kHome, {}}};
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

/// No cipher takes the application key, so its text is empty.
const auto kEmptyField = HasSubstr("param.value = '';");

TEST(LoginParameter, theFieldCarriesItsValue)
{
    Bed bed;
    bed.services.loginParameter.injectLoginParameter(*bed.view, "QUJD");
    EXPECT_EQ(bed.desktop.journal.acts().back(), "script\n"
                                                 "    var param = document.createElement('input');\n"
                                                 "    param.type = 'hidden';\n"
                                                 "    param.value = 'QUJD';\n"
                                                 "    param.name = 'param';\n"
                                                 "    document.getElementById('loginform').appendChild(param);\n"
                                                 "    $('.resetID').css('display','none');");
}

TEST(LoginParameter, theFieldComesOnce)
{
    Bed bed;
    bed.go(kLogin);
    EXPECT_THAT(bed.desktop.journal.starting("GET "), ElementsAre(std::string("GET ") + kEcho));
    EXPECT_THAT(bed.acts(),
                ElementsAre(R"(print json: [{"OsName": "mac", "DiskSerial": "C02ABC123XYZ", "CurrentDate": )"
                            R"("2026-11-16T21:03:25.123Z", "Ip": "203.0.113.7"}])",
                            kEmptyField));
    bed.go(kLogin);
    EXPECT_THAT(bed.desktop.journal.starting("GET "), SizeIs(1));
    EXPECT_THAT(bed.desktop.journal.starting("script"), SizeIs(1));
}

TEST(LoginParameter, onlyAFirstPageWithLoginInItsAddressGetsIt)
{
    for (const auto& [first, requests] : {std::pair(kOtherCase, 0U), {kHome, 1U}}) {
        Bed bed;
        bed.go(first);
        bed.go(kLogin);
        EXPECT_EQ(bed.desktop.journal.starting("GET ").size(), requests) << first;
    }
}

TEST(LoginParameter, whatIsMissingIsWrittenAsItIsKnown)
{
    const std::tuple<simulated::Route, std::optional<std::string>, std::string, std::string> cases[] = {
        {{.body = "\xFF\xFE"}, "S\"1", "S\"1", ""},
        {{.hasBody = false}, " \n", "", ""},
        {{.body = " \"x\u2028"}, std::nullopt, "Unknown", "\"x"},
    };
    for (const auto& [echo, serial, writtenSerial, writtenAddress] : cases) {
        Bed bed;
        bed.desktop.network.routes[kEcho] = echo;
        bed.desktop.hardware.serial = serial;
        bed.go(kLogin);
        EXPECT_THAT(bed.acts(), ElementsAre("print json: " + buildDeviceInfoJson(writtenSerial, kDate, writtenAddress),
                                            kEmptyField));
    }
}

TEST(LoginParameter, withoutAnAnswerOrADelegateThereIsNoField)
{
    Bed unanswered;
    unanswered.desktop.network.routes.clear();
    unanswered.go(kLogin);
    EXPECT_THAT(unanswered.acts(), ElementsAre(std::string("print Error fetching IP address: ") + kEcho + ": refused"));
    Bed abandoned;
    abandoned.go(kLogin);
    abandoned.coordinator.reset();
    EXPECT_THAT(abandoned.acts(), testing::IsEmpty());
}

TEST(LoginParameter, aScriptThatFailsIsReported)
{
    Bed bed;
    bed.view->onScript = [](const auto&) { return ScriptResult(platformError("script", 699, "", "no form")); };
    bed.go(kLogin);
    EXPECT_THAT(bed.acts(), testing::Contains("print JavaScript execution failed: no form"));
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
