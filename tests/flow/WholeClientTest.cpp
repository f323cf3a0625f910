#include "app/Client.h"

namespace orken {
namespace {

/// How far a client has got when something happens to it.
enum class Stage { launched, sessionOpen, loading, finished };

void reach(Client& client, Stage stage)
{
    client.launch();
    client.desktop.loop.run();
    if (stage >= Stage::sessionOpen) {
        client.desktop.press("Uygulamayı Aç");
    }
    if (stage >= Stage::loading) {
        client.desktop.loop.advance(Seconds{stage == Stage::finished ? 4.0 : 1.0});
    }
}

bool isEnabled(const Client& client)
{
    return client.desktop.windows.find("ORKEN")->content().isUsable(*client.desktop.browserViews.latest);
}

TEST(WholeClient, goesFromTheStartWindowToAPageInFullScreen)
{
    Client client;
    reach(client, Stage::sessionOpen);
    const auto session = client.desktop.windows.find("ORKEN");
    const auto other = client.desktop.windows.open("other");
    client.desktop.loop.advance(Seconds{1});
    EXPECT_TRUE(session->isVisible() && !other->isVisible()) << "what else is in view is closed";
    EXPECT_FALSE(isEnabled(client)) << "not before the first page has finished";
    EXPECT_NE(session->styleMask() & windowStyle::kFullScreen, 0U);
    EXPECT_THAT(client.desktop.journal.starting("request "), testing::SizeIs(1));

    client.desktop.loop.advance(Seconds{3});
    EXPECT_TRUE(isEnabled(client));
    client.desktop.loop.advance(Seconds{60});
    EXPECT_NE(session->styleMask() & windowStyle::kFullScreen, 0U) << "the toggles go to the panel";
    auto lines = client.desktop.journal.starting("print ");
    const testing::Matcher<std::string> isOfPass =
        testing::ContainsRegex("^print (Gelen url|Host:|Path:|Query Items:|Hash query)");
    std::erase_if(lines, [&](const std::string& line) { return isOfPass.Matches(line); });
    EXPECT_THAT(lines, ElementsAre("print Saved state dizini mevcut değil.",
                                   "print Dosya mevcut değil, varsayılan değerler kullanılacak.",
                                   "print Dizin oluşturuldu: /home/student/Library/Saved Application State/"
                                   "com.orken.test.savedState",
                                   "print Varsayılan restorecount.plist dosyası oluşturuldu.",
                                   "print Kapatılacak uygulama yok.", "print asdasdasdasd: Optional(\"203.0.113.7\")",
                                   "print FullScreen observeFullScreenChanges ",
                                   std::string("print ") + Client::kLoginURL, "print Gelen data tipi https"));
    EXPECT_THAT(client.desktop.journal.starting("browser view"), testing::SizeIs(1)) << "no redraw makes another one";
}

TEST(WholeClient, aFailedFirstLoadLeavesTheSessionDisabled)
{
    Client client;
    client.desktop.browserViews.site.clear();
    reach(client, Stage::finished);
    EXPECT_FALSE(isEnabled(client));
    EXPECT_EQ(client.desktop.browserViews.latest->url(), std::nullopt);
}

TEST(WholeClient, everyEndAtEveryStageCleansUpOnce)
{
    for (const Stage stage : {Stage::launched, Stage::sessionOpen, Stage::loading, Stage::finished}) {
        for (const bool usersClose : {false, true}) {
            Client client;
            reach(client, stage);
            (void)client.desktop.journal.take();
            if (usersClose) {
                client.desktop.windows.userCloses(
                    client.desktop.windows.find(stage == Stage::launched ? Client::kStartTitle : "ORKEN"));
            }
            client.desktop.quitFromOutside();
            client.desktop.quitFromOutside();
            client.desktop.loop.advance(Seconds{600});
            EXPECT_THAT(client.desktop.journal.acts(), ElementsAreArray(kCleanUp)) << static_cast<int>(stage);
        }
    }
}

TEST(WholeClient, aQuitDuringTheAddressRequestComesAfterItsLine)
{
    Client client;
    auto& echo = client.desktop.network.routes["https://ip.example/"];
    echo.error = platformError("network", 3, "", "cancelled");
    echo.meanwhile = [&] { client.desktop.quitFromOutside(); };
    reach(client, Stage::loading);
    const auto acts = client.desktop.journal.acts();
    const auto line = std::find(acts.begin(), acts.end(), "print asdasdasdasd: nil");
    ASSERT_NE(line, acts.end());
    EXPECT_TRUE(std::equal(line + 1, acts.end(), kCleanUp.begin(), kCleanUp.end()));
}

TEST(WholeClient, onlyTheGateWorksUnasked)
{
    Client client;
    client.launch();
    client.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(client.desktop.journal.starting("GET "), ElementsAre(std::string("GET ") + Client::kSettings));
    EXPECT_THAT(client.desktop.journal.starting("print "), testing::IsEmpty());
    EXPECT_EQ(client.desktop.browserViews.latest, nullptr);
}

} // namespace
} // namespace orken
