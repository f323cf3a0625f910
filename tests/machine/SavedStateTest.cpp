#include "foundation/PropertyList.h"
#include "machine/Bed.h"

#include <cerrno>

namespace orken {
namespace {

using testing::ElementsAre;

const std::string kFolder = "/home/student/Library/Saved Application State/com.orken.test.savedState";
const std::string kFile = kFolder + "/restorecount.plist";

struct Bed : MachineBed {
    std::vector<std::string> update()
    {
        (void)desktop.journal.take();
        state.updateRestoreCount();
        return desktop.journal.starting("print ");
    }

    [[nodiscard]] std::optional<std::int64_t> count()
    {
        return readPropertyList(desktop.files.contents.at(kFile), "restoreCount").value()->integer;
    }

    SavedState& state = machine.savedState;
};

std::string list(const std::string& content)
{
    return "<plist version=\"1.0\">" + content + "</plist>";
}

TEST(SavedState, theFolderIsRemovedAndMadeAnewWithTheCounterAtZero)
{
    Bed bed;
    bed.desktop.files.addFile(kFolder + "/window_1.data");
    bed.desktop.files.addFile(kFile, list("<dict><key>restoreCount</key><integer>7</integer></dict>"));
    bed.state.removeSavedStateDirectory();
    bed.state.updateRestoreCount();
    EXPECT_THAT(bed.desktop.journal.starting("print "),
                ElementsAre("print Saved state dizini başarıyla silindi.",
                            "print Dosya mevcut değil, varsayılan değerler kullanılacak.",
                            "print Dizin oluşturuldu: " + kFolder,
                            "print Varsayılan restorecount.plist dosyası oluşturuldu."));
    EXPECT_EQ(bed.desktop.files.contentsOfDirectory(kFolder).value(), std::vector<std::string>{"restorecount.plist"});
    EXPECT_EQ(bed.count(), 0);

    bed.desktop.files.failingRemovals[kFolder] = EACCES;
    (void)bed.desktop.journal.take();
    bed.state.removeSavedStateDirectory();
    EXPECT_THAT(bed.desktop.journal.acts(),
                ElementsAre("print Saved state dizini silinirken bir hata oluştu: " + kFolder + ": error 13"));
    EXPECT_THAT(bed.update(), ElementsAre("print Restore Count değeri: 0", "print Yeni Restore Count değeri: 1",
                                          "print restorecount.plist dosyası güncellendi."));
    EXPECT_EQ(bed.count(), 1);
}

TEST(SavedState, aSurvivingFileIsRaisedRewrittenOrLeftAlone)
{
    constexpr const char* kMissing = "print restoreCount anahtarı bulunamadı, varsayılan değer kullanılacak.";
    constexpr const char* kDefault = "print Varsayılan restorecount.plist dosyası oluşturuldu.";
    constexpr const char* kWritten = "print restorecount.plist dosyası güncellendi.";
    const auto key = [](const std::string& value) {
        return list("<dict><key>x</key><true/><key>restoreCount</key>" + value + "</dict>");
    };
    const std::tuple<std::string, std::vector<std::string>, std::optional<std::int64_t>> cases[] = {
        {key("<integer>4</integer>"),
         {"print Restore Count değeri: 4", "print Yeni Restore Count değeri: 5", kWritten},
         5},
        {key("<integer>-1</integer>"),
         {"print Restore Count değeri: -1", "print Yeni Restore Count değeri: 0", kWritten},
         0},
        {key("<integer>9223372036854775807</integer>"),
         {"print Restore Count değeri: 9223372036854775807", "print Yeni Restore Count değeri: 9223372036854775807",
          kWritten},
         INT64_MAX},
        {key("<string>4</string>"), {kMissing, kDefault}, 0},
        {list("<dict/>"), {kMissing, kDefault}, 0},
        {list("<array/>"), {}, std::nullopt},
    };
    for (const auto& [content, lines, count] : cases) {
        Bed bed;
        bed.desktop.files.addFile(kFile, content);
        EXPECT_EQ(bed.update(), lines) << content;
        if (count) {
            EXPECT_EQ(bed.count(), count) << content;
        } else {
            EXPECT_EQ(asText(bed.desktop.files.contents[kFile]), content);
        }
    }
}

TEST(SavedState, failuresAreOneLineEachAndLeaveTheFileAsItWas)
{
    const auto fails = [](Bed& bed, const std::string& line) {
        const auto lines = bed.update();
        ASSERT_FALSE(lines.empty());
        EXPECT_THAT(lines.back(), testing::StartsWith("print " + line));
        EXPECT_GT(lines.back().size(), line.size() + 6);
    };
    for (const std::string& content : {std::string("no list"), std::string(), std::string(2 << 20, ' ')}) {
        Bed bed;
        bed.desktop.files.addFile(kFile, content);
        fails(bed, "Dosya okunurken bir hata oluştu: ");
        EXPECT_EQ(asText(bed.desktop.files.contents[kFile]), content);
    }
    Bed folder;
    folder.desktop.files.addFile(kFile + "/inside");
    fails(folder, "Dosya okunurken bir hata oluştu: ");

    Bed full;
    full.desktop.files.addFile(kFile, list("<dict><key>restoreCount</key><integer>4</integer></dict>"));
    full.desktop.files.failingWrites[kFile] = ENOSPC;
    fails(full, "Dosya kaydedilirken bir hata oluştu: ");

    Bed noFolder;
    noFolder.desktop.files.failingWrites[kFolder] = EACCES;
    fails(noFolder, "Varsayılan dosya oluşturulurken bir hata oluştu: ");
    EXPECT_FALSE(noFolder.desktop.files.exists(kFile));
}

} // namespace
} // namespace orken
