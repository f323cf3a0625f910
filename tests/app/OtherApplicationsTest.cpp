#include "app/Client.h"

#include "machine/OtherApplications.h"
#include "machine/Uninstall.h"

#include <cerrno>

namespace orken {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> kSystem{"com.apple.finder",         "com.apple.dock",         "com.apple.Spotlight",
                                       "com.apple.systemuiserver", "com.apple.WindowServer", "com.apple.loginwindow",
                                       "com.apple.wallpaper.agent"};

struct Bed {
    std::vector<std::string> close(const std::string& answer)
    {
        if (!answer.empty()) {
            desktop.alerts.answerNext(answer);
        }
        others.closeOtherApplications();
        return desktop.journal.take();
    }

    simulated::SimulatedDesktop desktop;
    OtherApplications others{{desktop.runningApplications, desktop.alerts, desktop.application, desktop.console},
                             "com.orken.test"};
};

std::string alertAbout(const std::string& list)
{
    return "alert Devam edebilmek için aşağıdaki açık uygulamalar kapatılacak, onaylıyor musunuz?: Açık olan "
           "uygulamalar:\n" +
           list;
}

TEST(OtherApplications, theAlertNamesFiveAndAnAgreementAsksThemAll)
{
    const std::tuple<std::vector<std::optional<std::string>>, std::string, std::vector<std::string>> cases[] = {
        {{"A", "B", "C", "D", "E"}, "A\nB\nC\nD\nE", {"quit A", "quit B", "quit C", "quit D", "quit E"}},
        {{"A", {}, "B", "C", "D", "E", "F"},
         "A\nB\nC\nD\nE\n...",
         {"quit A", "quit ?", "quit B", "quit C", "quit D", "quit E", "quit F"}},
        {{{}, {}}, "", {"quit ?", "quit ?"}},
    };
    for (const auto& [names, list, quits] : cases) {
        Bed bed;
        for (const auto& name : names) {
            bed.desktop.runningApplications.add(name, name ? std::optional("id." + *name) : std::nullopt);
        }
        auto expected = quits;
        expected.insert(expected.begin(), alertAbout(list));
        EXPECT_EQ(bed.close("Evet"), expected);
    }
}

TEST(OtherApplications, anythingButAnAgreementEndsTheClientWithNothingClosed)
{
    for (const bool aborted : {false, true}) {
        Bed bed;
        bed.desktop.runningApplications.add("A");
        bed.desktop.loop.later(Seconds{1}, [&] { bed.desktop.alerts.abortAll(); });
        EXPECT_THAT(bed.close(aborted ? "" : "Hayır"), ElementsAre(alertAbout("A"), "terminated"));
    }
}

TEST(OtherApplications, eachRoutineKeepsItsOwnSystemComponents)
{
    Bed bed;
    EXPECT_THAT(bed.close(""), ElementsAre("print Kapatılacak uygulama yok.")) << "the client alone";
    for (const std::string& identifier : kSystem) {
        bed.desktop.runningApplications.add(identifier, identifier);
    }
    bed.desktop.runningApplications.add("copy", "com.orken.test");
    bed.others.terminateOtherApplications();
    EXPECT_THAT(bed.desktop.journal.take(), IsEmpty());
    EXPECT_THAT(bed.close("Evet"),
                ElementsAre(alertAbout("com.apple.systemuiserver\ncom.apple.WindowServer\ncom.apple.loginwindow\n"
                                       "com.apple.wallpaper.agent"),
                            "quit com.apple.systemuiserver", "quit com.apple.WindowServer",
                            "quit com.apple.loginwindow", "quit com.apple.wallpaper.agent"));

    bed.desktop.runningApplications.add("A", "com.apple.Finder");
    bed.desktop.runningApplications.add(std::nullopt);
    bed.others.terminateOtherApplications();
    EXPECT_THAT(bed.desktop.journal.take(), ElementsAre("quit A", "quit ?")) << "to the letter; without an alert";
}

TEST(OtherApplications, areAskedBetweenTheStartWindowAndTheSession)
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

TEST(Uninstall, removesTheInstalledBundleAloneAndEndsTheClientInAnyCase)
{
    const std::tuple<const char*, int, std::vector<std::string>> cases[] = {
        {"/Applications/Orken.app/Contents/x",
         0,
         {"remove /Applications/Orken.app/Contents/x", "remove /Applications/Orken.app/Contents",
          "remove /Applications/Orken.app", "print Uygulama başarıyla silindi."}},
        {"/Applications/Orken.app/Contents/x",
         EACCES,
         {"print Uygulama silinirken hata oluştu: Error Domain=posix Code=13 \"/Applications/Orken.app: error 13\""}},
        {"/opt/Orken.app/Contents/x", 0, {"print Uygulama bulunamadı."}},
    };
    for (const auto& [file, code, lines] : cases) {
        Client client;
        client.desktop.files.addFile(file);
        if (code != 0) {
            client.desktop.files.failingRemovals["/Applications/Orken.app"] = code;
        }
        client.start();
        (void)client.desktop.journal.take();
        client.desktop.alerts.answerNext("Evet");
        client.desktop.press("Uygulamayı Sil");
        auto expected = lines;
        expected.insert(expected.begin(),
                        "alert Uygulamayı silmek istediğinizden emin misiniz?: Bu işlem geri alınamaz");
        expected.insert(expected.end(), kCleanUp.begin(), kCleanUp.end());
        EXPECT_EQ(client.desktop.journal.acts(), expected);
    }
}

TEST(Uninstall, aRefusalLeavesEverythingAsItIs)
{
    Client client;
    client.start();
    client.desktop.alerts.answerNext("Hayır");
    (void)client.desktop.journal.take();
    client.desktop.press("Uygulamayı Sil");
    EXPECT_EQ(client.desktop.journal.acts().size(), 1U) << "the alert";
    EXPECT_TRUE(client.desktop.showing("Uygulamayı Aç"));
}

} // namespace
} // namespace orken
