#include "machine/Bed.h"

#include <cerrno>

namespace orken {
namespace {

const std::filesystem::path kFolder = "/home/student/.cache/com.orken.test";

struct Bed : MachineBed {
    std::vector<std::string> clear()
    {
        machine.browsingData.clearBrowsingData();
        return desktop.journal.take();
    }
};

TEST(BrowsingData, emptiesTheCachesFolderAlone)
{
    Bed bed;
    bed.desktop.files.addFile(kFolder / "sub/inner/file");
    bed.desktop.files.addFile(kFolder / "file");
    bed.desktop.files.addFile("/home/student/.cache/other/file");
    EXPECT_EQ(bed.clear().front(), "remove cookies");
    EXPECT_TRUE(bed.desktop.files.exists(kFolder));
    EXPECT_FALSE(bed.desktop.files.exists(kFolder / "sub") || bed.desktop.files.exists(kFolder / "file"));
    EXPECT_TRUE(bed.desktop.files.exists("/home/student/.cache/other/file"));
}

TEST(BrowsingData, stopsAtAnEntryThatCannotBeRemoved)
{
    for (const auto& [code, lastIsLeft] : {std::pair(EACCES, true), std::pair(ENOENT, false)}) {
        Bed bed;
        for (const char* name : {"a", "b", "c"}) {
            bed.desktop.files.addFile(kFolder / name);
        }
        bed.desktop.files.failingRemovals[kFolder / "b"] = code;
        bed.clear();
        EXPECT_FALSE(bed.desktop.files.exists(kFolder / "a"));
        EXPECT_EQ(bed.desktop.files.exists(kFolder / "c"), lastIsLeft) << code;
    }
}

TEST(BrowsingData, everySiteLosesWhatItsOwnRecordNamesInListOrder)
{
    Bed bed;
    EXPECT_THAT(bed.clear(), ElementsAre("remove cookies")) << "without a caches folder";
    bed.desktop.loop.run();
    bed.desktop.files.caches.clear();
    bed.desktop.websiteData.add("a.example", 1);
    bed.desktop.websiteData.add("b.example", 6);
    EXPECT_THAT(bed.clear(), ElementsAre("remove cookies")) << "the rest is only started";
    bed.desktop.loop.run();
    EXPECT_THAT(bed.desktop.journal.acts(),
                ElementsAre("remove data of a.example types 1", "remove data of b.example types 6"));
    EXPECT_TRUE(bed.desktop.websiteData.records.empty());
}

} // namespace
} // namespace orken
