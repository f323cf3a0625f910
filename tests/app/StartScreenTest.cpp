#include "app/Client.h"

namespace orken {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

TEST(StartScreen, openingClosesTheKeyWindowAndThenOpensTheSession)
{
    Client client;
    client.launch();
    client.desktop.loop.run();
    EXPECT_TRUE(client.desktop.showing("Uygulama sürümü: 2.1") && client.desktop.showing("Uygulamayı Sil"));
    EXPECT_FALSE(client.window(Client::kStartTitle)->content().alert());
    (void)client.desktop.journal.take();
    client.desktop.press("Uygulamayı Aç");
    EXPECT_THAT(client.desktop.journal.acts(), ElementsAre("close ORKEN'E Hoşgeldiniz", "make window 640x480 style 15",
                                                           "center", "title ORKEN", "show ORKEN", "content ORKEN"));
    EXPECT_EQ(client.window(Client::kStartTitle), nullptr);
}

TEST(StartScreen, aVersionThatIsNoTextEndsTheClientWhateverIsAnswered)
{
    for (const char* button : {"Güncellemeyi İndir", "Kapat"}) {
        Client client;
        client.desktop.bundle.values[kBundleShortVersionKey] = 2.1;
        client.launch();
        client.desktop.loop.run();
        EXPECT_TRUE(client.desktop.showing("Uygulama sürümü: Sürüm alınamadı."));
        const auto alert = client.window(Client::kStartTitle)->content().alert();
        ASSERT_TRUE(alert);
        EXPECT_EQ(alert->title, "Güncelleme Gerekli");
        EXPECT_EQ(alert->message, "Uygulama sürümü alınamadı.");
        EXPECT_EQ(alert->buttons.at(1).role, ButtonRole::cancel);
        (void)client.desktop.journal.take();
        client.window(Client::kStartTitle)->content().answerAlert(button);
        EXPECT_THAT(client.desktop.journal.acts(), ElementsAreArray(kCleanUp)) << button;
    }
}

} // namespace
} // namespace orken
