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

std::string counter(const std::string& value)
{
    return list("<dict><key>x</key><true/><key>restoreCount</key>" + value + "</dict>");
}

TEST(SavedState, theFolderIsMadeAnewWithTheCounterAtZero)
{
    Bed bed;
    bed.desktop.files.addFile(kFolder + "/window_1.data");
    bed.desktop.files.addFile(kFile, counter("<integer>7</integer>"));
    bed.state.removeSavedStateDirectory();
    bed.state.updateRestoreCount();
    EXPECT_THAT(bed.desktop.journal.starting("print "),
                ElementsAre("print Saved state dizini başarıyla silindi.",
                            "print Dosya mevcut değil, varsayılan değerler kullanılacak.",
                            "print Dizin oluşturuldu: " + kFolder,
                            "print Varsayılan restorecount.plist dosyası oluşturuldu."));
    EXPECT_EQ(bed.desktop.files.contentsOfDirectory(kFolder).value(), std::vector<std::string>{"restorecount.plist"});
    EXPECT_EQ(bed.count(), 0);
}

TEST(SavedState, aFolderThatStaysIsOneLine)
{
    Bed bed;
    bed.desktop.files.addFile(kFile);
    bed.desktop.files.failingRemovals[kFolder] = EACCES;
    bed.state.removeSavedStateDirectory();
    EXPECT_THAT(bed.desktop.journal.acts(),
                ElementsAre("print Saved state dizini silinirken bir hata oluştu: " + kFolder + ": error 13"));
}

TEST(SavedState, aCounterIsRaisedToTheGreatestNumber)
{
    for (const auto& [before, after] : {std::pair<std::int64_t, std::int64_t>{4, 5}, {-1, 0}, {INT64_MAX, INT64_MAX}}) {
        Bed bed;
        bed.desktop.files.addFile(kFile, counter("<integer>" + std::to_string(before) + "</integer>"));
        EXPECT_THAT(bed.update(), ElementsAre("print Restore Count değeri: " + std::to_string(before),
                                              "print Yeni Restore Count değeri: " + std::to_string(after),
                                              "print restorecount.plist dosyası güncellendi."));
        EXPECT_EQ(bed.count(), after);
    }
}

TEST(SavedState, aDictionaryWithoutACounterGetsOne)
{
    for (const std::string& content : {counter("<string>4</string>"), list("<dict/>")}) {
        Bed bed;
        bed.desktop.files.addFile(kFile, content);
        EXPECT_THAT(bed.update(), ElementsAre("print restoreCount anahtarı bulunamadı, varsayılan değer kullanılacak.",
                                              "print Varsayılan restorecount.plist dosyası oluşturuldu."));
        EXPECT_EQ(bed.count(), 0) << content;
    }
}

TEST(SavedState, failuresLeaveTheFileAsItWas)
{
    const std::string unread = "print Dosya okunurken bir hata oluştu: ";
    const std::tuple<std::optional<std::string>, std::string, std::string> cases[] = {
        {list("<array/>"), "", ""},
        {"no list", "", unread},
        {"", "", unread},
        {std::string(2 << 20, ' '), "", unread},
        {counter("<integer>4</integer>"), kFile, "print Dosya kaydedilirken bir hata oluştu: "},
        {{}, kFolder, "print Varsayılan dosya oluşturulurken bir hata oluştu: "},
    };
    for (const auto& [content, failing, line] : cases) {
        Bed bed;
        if (content) {
            bed.desktop.files.addFile(kFile, *content);
        }
        bed.desktop.files.failingWrites[failing] = EACCES;
        const auto lines = bed.update();
        const std::string last = lines.empty() ? "" : lines.back();
        EXPECT_TRUE(last.starts_with(line) && (line.empty() || last.size() > line.size())) << last;
        EXPECT_EQ(bed.desktop.files.exists(kFile), content.has_value());
        EXPECT_EQ(asText(bed.desktop.files.contents[kFile]), content.value_or(""));
    }
}

} // namespace
} // namespace orken
