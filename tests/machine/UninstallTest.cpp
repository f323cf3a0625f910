#include "machine/Bed.h"

#include <cerrno>

namespace orken {

constexpr const char* kQuestion = "alert Uygulamayı silmek istediğinizden emin misiniz?: Bu işlem geri alınamaz";

TEST(Uninstall, onlyAnAgreementRemovesTheBundleAndEndsTheClient)
{
    const std::string bundle = "/Applications/Orken.app";
    const std::tuple<const char*, std::string, std::string, std::vector<std::string>> cases[] = {
        {"Evet",
         bundle,
         "",
         {"remove " + bundle + "/x", "remove " + bundle, "print Uygulama başarıyla silindi.", "terminated"}},
        {"Evet",
         bundle,
         bundle,
         {"print Uygulama silinirken hata oluştu: Error Domain=posix Code=13 \"" + bundle + ": error 13\"",
          "terminated"}},
        {"Evet", "/opt/Orken.app", "", {"print Uygulama bulunamadı.", "terminated"}},
        {"Hayır", bundle, "", {}},
    };
    for (const auto& [answer, folder, failing, lines] : cases) {
        MachineBed bed;
        bed.desktop.files.addFile(folder + "/x");
        bed.desktop.files.failingRemovals[failing] = EACCES;
        bed.desktop.alerts.answerNext(answer);
        bed.machine.uninstall.confirmUninstall();
        auto expected = lines;
        expected.insert(expected.begin(), kQuestion);
        EXPECT_EQ(bed.desktop.journal.acts(), expected);
    }
}

} // namespace orken
