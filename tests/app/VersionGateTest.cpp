#include "app/Client.h"

namespace orken {
namespace {

std::optional<Alert> alertOf(const Client& client)
{
    return client.desktop.windows.find(Client::kStartTitle)->content().alert();
}

/// Of the alert, empty when there is none.
std::string messageOf(const Client& client)
{
    return alertOf(client) ? alertOf(client)->message : "";
}

TEST(VersionGate, anotherVersionIsAskedForOnlyWhenItIsNewer)
{
    const std::tuple<std::string, std::string, std::string, bool> cases[] = {{"1.10", "1.9", "1.9", false},
                                                                             {"1.2", "1.2", "1.2", false},
                                                                             {"1.9", "1.10", "1.10", true},
                                                                             {"1.2", "1.2.0", "1.2.0", true},
                                                                             {"1", "1\"4", "1\\\"4", true}};
    for (const auto& [current, required, described, isNewer] : cases) {
        Client client;
        client.desktop.bundle.values[kBundleShortVersionKey] = current;
        client.desktop.network.routes[Client::kSettings] = {.body =
                                                                R"({"other": 1, "macVersion": ")" + described + "\"}"};
        client.start();
        std::string compared = "print Mevcut Sürüm: " + current;
        compared += " - Gerekli Sürüm: " + required;
        std::vector<std::string> lines{compared, "print Başarılı: AppData(macVersion: \"" + described + "\")"};
        if (isNewer) {
            lines.insert(lines.begin() + 1, {"print ", "print Uygulama güncelleme gerekli."});
        }
        EXPECT_EQ(client.desktop.journal.starting("print "), lines);
        EXPECT_EQ(messageOf(client), isNewer ? "Uygulamanız eski. Lütfen " + required + " sürümüne güncelleyin." : "");
    }
}

TEST(VersionGate, withoutAnAnswerTheClientCannotBeUsed)
{
    const std::pair<simulated::Route, std::string> cases[] = {
        {{.error = platformError("network", 2, "", "refused")}, "Hata: refused"},
        {{.hasBody = false}, "Hata: Bilinmeyen hata"},
        {{.body = R"({"macVersion": 14})"}, "JSON parse hatası: member \"macVersion\" is not a string"}};
    for (const auto& [settings, line] : cases) {
        Client client;
        client.desktop.network.routes[Client::kSettings] = settings;
        client.launch();
        client.desktop.loop.run();
        client.desktop.loop.runBackground();
        EXPECT_THAT(client.desktop.journal.starting("print "), ElementsAre("print " + line, "print Gelen veri null"));
        EXPECT_EQ(messageOf(client), "") << "not from the background queue";
        client.desktop.loop.run();
        EXPECT_EQ(messageOf(client), "Servisle bağlantı kurulamadı.");
    }
}

TEST(VersionGate, aClientWithoutAVersionCanOnlyBeClosed)
{
    Client client;
    client.desktop.bundle.values[kBundleShortVersionKey] = 2.1;
    client.start();
    EXPECT_TRUE(client.desktop.showing("Uygulama sürümü: Sürüm alınamadı."));
    EXPECT_THAT(client.desktop.journal.starting("GET "), testing::IsEmpty()) << "nothing to compare with";
    ASSERT_TRUE(alertOf(client));
    EXPECT_EQ(alertOf(client)->title, "Güncelleme Gerekli");
    EXPECT_EQ(alertOf(client)->message, "Uygulama sürümü alınamadı.");
    EXPECT_EQ(alertOf(client)->buttons.at(1).role, ButtonRole::cancel);
    (void)client.desktop.journal.take();
    client.desktop.windows.find(Client::kStartTitle)->content().answerAlert("Kapat");
    EXPECT_THAT(client.desktop.journal.acts(), ElementsAreArray(kCleanUp));
}

TEST(VersionGate, theUpdateButtonReplacesTheClient)
{
    Client client;
    client.desktop.network.routes.clear();
    client.desktop.files.addFile("/Applications/Orken.app");
    client.start();
    (void)client.desktop.journal.take();
    client.desktop.windows.find(Client::kStartTitle)->content().answerAlert("Güncellemeyi İndir");
    std::vector<std::string> acts{"remove /Applications/Orken.app", "print Uygulama başarıyla silindi.",
                                  "open https://content.example/program/mac/orkenv1.dmg"};
    acts.insert(acts.end(), kCleanUp.begin(), kCleanUp.end());
    EXPECT_EQ(client.desktop.journal.acts(), acts);
}

TEST(VersionGate, anAnswerAfterTheStartWindowHasGoneChangesNothing)
{
    Client client;
    client.desktop.network.routes.clear();
    client.launch();
    client.desktop.loop.run();
    client.desktop.press("Uygulamayı Aç");
    client.desktop.loop.advance(Seconds{5});
    client.desktop.loop.runBackground();
    client.desktop.loop.run();
    EXPECT_THAT(client.desktop.journal.starting("print Gelen veri null"), testing::SizeIs(1));
    EXPECT_TRUE(client.desktop.windows.find("ORKEN")->isVisible());
}

} // namespace
} // namespace orken
