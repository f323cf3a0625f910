#include "app/Client.h"
#include "app/HostingWindow.h"

namespace orken {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class Blank final : public View {
public:
    [[nodiscard]] Element body() override { return Text("blank"); }
};

TEST(HostingWindow, isCentredTitledAndShownBeforeItGetsItsView)
{
    simulated::SimulatedDesktop desktop;
    openHostingWindow(desktop.windows, "ORKEN", 15, std::make_unique<Blank>(),
                      {.x = 20, .y = 20, .width = 640, .height = 480});
    EXPECT_THAT(desktop.journal.acts(),
                ElementsAre("make window 640x480 style 15", "center", "title ORKEN", "show ORKEN", "content ORKEN"));
    EXPECT_TRUE(desktop.showing("blank"));
}

TEST(StartScreen, offersItsThreeActionsAndTheVersion)
{
    Client client;
    client.launch();
    client.desktop.loop.run();
    for (const char* text : {"Uygulamayı Aç", "Uygulamadan Çık", "Uygulama sürümü: 2.1", "Uygulamayı Sil"}) {
        EXPECT_TRUE(client.desktop.showing(text)) << text;
    }
    EXPECT_FALSE(client.window(Client::kStartTitle)->content().alert());
}

TEST(StartScreen, openingClosesTheKeyWindowAndThenOpensTheSession)
{
    Client client;
    client.launch();
    client.desktop.loop.run();
    client.desktop.journal.clear();
    client.desktop.press("Uygulamayı Aç");
    EXPECT_THAT(client.desktop.journal.acts(), ElementsAre("close ORKEN'E Hoşgeldiniz", "make window 640x480 style 15",
                                                           "center", "title ORKEN", "show ORKEN", "content ORKEN"));
    EXPECT_EQ(client.window(Client::kStartTitle), nullptr);
    client.desktop.loop.run();
    client.window("ORKEN")->close();
    EXPECT_NE(client.window("ORKEN"), nullptr) << "the list keeps what the client opened itself";
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
        client.desktop.journal.clear();
        client.desktop.answerAlertOf("Uygulamayı Sil", button);
        EXPECT_THAT(client.desktop.journal.acts(), ElementsAreArray(kCleanUp)) << button;
    }
}

} // namespace
} // namespace orken
