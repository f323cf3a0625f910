#include "app/Client.h"

namespace orken {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr const char* kUnreachable = "Servisle bağlantı kurulamadı.";

std::optional<Alert> alertOf(const Client& client)
{
    return client.window(Client::kStartTitle)->content().alert();
}

TEST(VersionGate, decidesByWhatTheProviderRequires)
{
    struct Case {
        std::string current;
        simulated::Route settings;
        std::vector<std::string> lines;
        std::string message;
    };

    const auto requiring = [](const std::string& version) {
        return simulated::Route{.body = "{\"macVersion\": \"" + version + "\", \"other\": 1}"};
    };
    const auto compared = [](const std::string& current, const std::string& required) {
        return "print Mevcut Sürüm: " + current + " - Gerekli Sürüm: " + required;
    };
    const auto read = [](const std::string& version) {
        return "print Başarılı: AppData(macVersion: \"" + version + "\")";
    };
    const std::string outdated = "print Uygulama güncelleme gerekli.";
    const std::string null = "print Gelen veri null";
    const Case cases[] = {
        {"1.10", requiring("1.9"), {compared("1.10", "1.9"), read("1.9")}, ""},
        {"1.2", requiring("1.2"), {compared("1.2", "1.2"), read("1.2")}, ""},
        {"1.9",
         requiring("1.10"),
         {compared("1.9", "1.10"), "print ", outdated, read("1.10")},
         "Uygulamanız eski. Lütfen 1.10 sürümüne güncelleyin."},
        {"1.2",
         requiring("1.2.0"),
         {compared("1.2", "1.2.0"), "print ", outdated, read("1.2.0")},
         "Uygulamanız eski. Lütfen 1.2.0 sürümüne güncelleyin."},
        {"1",
         requiring("1\\\"4"),
         {compared("1", "1\"4"), "print ", outdated, read("1\\\"4")},
         "Uygulamanız eski. Lütfen 1\"4 sürümüne güncelleyin."},
        {"1", {.error = platformError("network", 2, "", "refused")}, {"print Hata: refused", null}, kUnreachable},
        {"1", {.hasBody = false}, {"print Hata: Bilinmeyen hata", null}, kUnreachable},
        {"1",
         {.body = R"({"macVersion": 14})"},
         {"print JSON parse hatası: member \"macVersion\" is not a string", null},
         kUnreachable},
    };
    for (const auto& [current, settings, lines, message] : cases) {
        Client client;
        client.desktop.bundle.values[kBundleShortVersionKey] = current;
        client.desktop.network.routes[Client::kSettings] = settings;
        client.launch();
        client.desktop.loop.run();
        EXPECT_FALSE(alertOf(client)) << "the start screen can be used while the request is under way";
        client.desktop.loop.runBackground();
        EXPECT_EQ(client.desktop.journal.starting("print "), lines);
        EXPECT_FALSE(alertOf(client)) << "not from the background queue";
        client.desktop.loop.run();
        EXPECT_EQ(alertOf(client) ? alertOf(client)->message : "", message);
    }
}

TEST(VersionGate, bothButtonsOfTheAlertEndTheClient)
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
    client.window(Client::kStartTitle)->content().answerAlert("Kapat");
    EXPECT_THAT(client.desktop.journal.acts(), ElementsAreArray(kCleanUp));

    Client outdated;
    outdated.desktop.network.routes.clear();
    outdated.desktop.files.addFile("/Applications/Orken.app");
    outdated.start();
    (void)outdated.desktop.journal.take();
    outdated.window(Client::kStartTitle)->content().answerAlert("Güncellemeyi İndir");
    std::vector<std::string> acts{"remove /Applications/Orken.app", "print Uygulama başarıyla silindi.",
                                  "open https://content.example/program/mac/orkenv1.dmg"};
    acts.insert(acts.end(), kCleanUp.begin(), kCleanUp.end());
    EXPECT_EQ(outdated.desktop.journal.acts(), acts);
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
    EXPECT_TRUE(client.window("ORKEN")->isVisible());
}

} // namespace
} // namespace orken
