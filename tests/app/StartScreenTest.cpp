#include "app/Client.h"

namespace orken {

using testing::_;

constexpr WindowStyleMask kSessionStyle =
    windowStyle::kTitled | windowStyle::kClosable | windowStyle::kMiniaturizable | windowStyle::kResizable;

TEST(StartScreen, theSessionOpensAfterTheHousekeeping)
{
    Client client;
    client.start();
    EXPECT_TRUE(client.desktop.showing("Uygulama sürümü: 2.1"));
    (void)client.desktop.journal.take();
    client.desktop.press("Uygulamayı Aç");
    EXPECT_THAT(client.desktop.journal.take(),
                ElementsAre("close ORKEN'E Hoşgeldiniz", "print Saved state dizini mevcut değil.", _, _, _, _,
                            "print Kapatılacak uygulama yok.",
                            "make window 640x480 style " + std::to_string(kSessionStyle), "center", "title ORKEN",
                            "show ORKEN", "content ORKEN"));
    EXPECT_EQ(client.desktop.windows.find(Client::kStartTitle), nullptr);
}

TEST(StartScreen, aRefusalToCloseOtherApplicationsOpensNoSession)
{
    Client client;
    client.desktop.runningApplications.add("A");
    client.start();
    client.desktop.alerts.answerNext("Hayır");
    client.desktop.press("Uygulamayı Aç");
    EXPECT_EQ(client.desktop.journal.acts().back(), "terminated");
    EXPECT_EQ(client.desktop.windows.find("ORKEN"), nullptr);
}

TEST(StartScreen, quittingButtonsCleanUp)
{
    for (const char* button : {"Uygulamadan Çık", "Uygulamayı Sil"}) {
        Client client;
        client.start();
        client.desktop.alerts.answerNext("Evet");
        client.desktop.press(button);
        const auto acts = client.desktop.journal.take();
        EXPECT_THAT(std::vector(acts.end() - 4, acts.end()), ElementsAreArray(kCleanUp)) << button;
    }
}

} // namespace orken
