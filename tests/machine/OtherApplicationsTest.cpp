#include "machine/Bed.h"

namespace orken {
namespace {

const std::vector<std::string> kSystem{"com.apple.finder",         "com.apple.dock",         "com.apple.Spotlight",
                                       "com.apple.systemuiserver", "com.apple.WindowServer", "com.apple.loginwindow",
                                       "com.apple.wallpaper.agent"};

struct Bed : MachineBed {
    std::vector<std::string> close(const std::string& answer)
    {
        if (!answer.empty()) {
            desktop.alerts.answerNext(answer);
        }
        others.closeOtherApplications();
        return desktop.journal.take();
    }

    OtherApplications& others = machine.otherApplications;
};

std::string alertAbout(const std::string& list)
{
    return "alert Devam edebilmek için aşağıdaki açık uygulamalar kapatılacak, onaylıyor musunuz?: Açık olan "
           "uygulamalar:\n" +
           list;
}

TEST(OtherApplications, anAgreementAsksAllOfWhomTheAlertNamesFive)
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

TEST(OtherApplications, withoutAnAgreementTheClientEnds)
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

} // namespace
} // namespace orken
