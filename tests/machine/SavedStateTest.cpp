#include "foundation/PropertyList.h"
#include "machine/Bed.h"

#include <cerrno>

namespace orken {
namespace {

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

TEST(SavedState, aCounterIsRaisedToTheGreatestNumberAndAMissingOneIsZero)
{
    const auto raised = [](const std::string& before, const std::string& after) {
        return std::vector<std::string>{"print Restore Count değeri: " + before,
                                        "print Yeni Restore Count değeri: " + after,
                                        "print restorecount.plist dosyası güncellendi."};
    };
    const std::vector<std::string> added{"print restoreCount anahtarı bulunamadı, varsayılan değer kullanılacak.",
                                         "print Varsayılan restorecount.plist dosyası oluşturuldu."};
    const std::string greatest = std::to_string(INT64_MAX);
    const std::tuple<std::string, std::vector<std::string>, std::int64_t> cases[] = {
        {counter("<integer>4</integer>"), raised("4", "5"), 5},
        {counter("<integer>-1</integer>"), raised("-1", "0"), 0},
        {counter("<integer>" + greatest + "</integer>"), raised(greatest, greatest), INT64_MAX},
        {counter("<string>4</string>"), added, 0},
        {list("<dict/>"), added, 0},
    };
    for (const auto& [content, lines, count] : cases) {
        Bed bed;
        bed.desktop.files.addFile(kFile, content);
        EXPECT_EQ(bed.update(), lines);
        EXPECT_EQ(bed.count(), count) << content;
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
