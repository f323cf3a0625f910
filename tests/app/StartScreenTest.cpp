#include "app/Client.h"

namespace orken {
namespace {

using testing::ElementsAre;

TEST(StartScreen, openingClosesTheKeyWindowKeepsHouseAndThenOpensTheSession)
{
    Client client;
    client.start();
    EXPECT_TRUE(client.desktop.showing("Uygulama sürümü: 2.1") && client.desktop.showing("Uygulamayı Sil"));
    (void)client.desktop.journal.take();
    client.desktop.press("Uygulamayı Aç");
    auto acts = client.desktop.journal.take();
    std::erase_if(acts, [](const std::string& act) { return act.starts_with("make folder"); });
    EXPECT_THAT(acts, ElementsAre("close ORKEN'E Hoşgeldiniz", "print Saved state dizini mevcut değil.",
                                  "print Dosya mevcut değil, varsayılan değerler kullanılacak.", testing::_, testing::_,
                                  "print Varsayılan restorecount.plist dosyası oluşturuldu.",
                                  "print Kapatılacak uygulama yok.", "make window 640x480 style 15", "center",
                                  "title ORKEN", "show ORKEN", "content ORKEN"));
    EXPECT_EQ(client.window(Client::kStartTitle), nullptr);
}

TEST(StartScreen, otherApplicationsAreAskedBetweenTheStartWindowAndTheSession)
{
    for (const char* answer : {"Evet", "Hayır"}) {
        Client client;
        client.desktop.runningApplications.add("A");
        client.start();
        client.desktop.alerts.answerNext(answer);
        (void)client.desktop.journal.take();
        client.desktop.press("Uygulamayı Aç");
        auto acts = client.desktop.journal.take();
        std::erase_if(acts, [](const std::string& act) {
            return !act.starts_with("quit") && !act.starts_with("make w") && act != "terminated";
        });
        EXPECT_EQ(acts, answer == std::string("Evet")
                            ? (std::vector<std::string>{"quit A", "make window 640x480 style 15"})
                            : std::vector<std::string>{"terminated"});
    }
}

TEST(StartScreen, anUninstallThatIsConfirmedCleansUpAndEnds)
{
    Client client;
    client.start();
    client.desktop.alerts.answerNext("Evet");
    client.desktop.press("Uygulamayı Sil");
    const auto acts = client.desktop.journal.take();
    EXPECT_THAT(std::vector(acts.end() - 4, acts.end()), testing::ElementsAreArray(kCleanUp));
}

} // namespace
} // namespace orken
