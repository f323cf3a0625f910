#include "machine/Bed.h"

#include <cerrno>

namespace orken {

using testing::ElementsAre;

constexpr const char* kQuestion = "alert Uygulamayı silmek istediğinizden emin misiniz?: Bu işlem geri alınamaz";

TEST(Uninstall, anAgreementEndsTheClient)
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
        MachineBed bed;
        bed.desktop.files.addFile(file);
        if (code != 0) {
            bed.desktop.files.failingRemovals["/Applications/Orken.app"] = code;
        }
        bed.desktop.alerts.answerNext("Evet");
        bed.machine.uninstall.confirmUninstall();
        auto expected = lines;
        expected.insert(expected.begin(), kQuestion);
        expected.emplace_back("terminated");
        EXPECT_EQ(bed.desktop.journal.acts(), expected);
    }
}

TEST(Uninstall, aRefusalLeavesEverythingAsItIs)
{
    MachineBed bed;
    bed.desktop.files.addFile("/Applications/Orken.app/Contents/x");
    bed.desktop.alerts.answerNext("Hayır");
    bed.machine.uninstall.confirmUninstall();
    EXPECT_THAT(bed.desktop.journal.acts(), ElementsAre(kQuestion));
}

} // namespace orken
