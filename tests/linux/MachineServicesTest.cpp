#include "linux/services/LocalFiles.h"
#include "linux/services/MachineHardware.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace orken::desktop {

namespace {

namespace fs = std::filesystem;

class MachineServices : public testing::Test {
protected:
    MachineServices() { fs::create_directories(folder_ / "cache/sub/deep"); }

    ~MachineServices() override { fs::remove_all(folder_); }

    fs::path write(const fs::path& name, const std::string& content)
    {
        std::ofstream(folder_ / name) << content;
        return folder_ / name;
    }

    const fs::path folder_ = fs::path(testing::TempDir()) / ("orken-machine-" + std::to_string(getpid()));
};

TEST_F(MachineServices, removalTakesFoldersAndLinksButNotWhatLinksLeadTo)
{
    LocalFiles files;
    const fs::path kept = write("kept", "content");
    write("cache/sub/deep/file", "content");
    fs::create_symlink(kept, folder_ / "cache/sub/link");
    fs::create_symlink(folder_, folder_ / "cache/link");
    fs::create_symlink("/nowhere", folder_ / "cache/dangling");

    const auto names = files.contentsOfDirectory(folder_ / "cache");
    ASSERT_TRUE(names);
    EXPECT_THAT(names.value(), testing::UnorderedElementsAre("sub", "link", "dangling"));
    for (const std::string& name : names.value()) {
        EXPECT_TRUE(files.removeItem(folder_ / "cache" / name)) << name;
    }
    EXPECT_TRUE(fs::is_empty(folder_ / "cache"));
    EXPECT_TRUE(fs::exists(kept));
}

TEST_F(MachineServices, aFileIsWrittenWholeOrItsErrorIsGiven)
{
    LocalFiles files;
    const fs::path file = write("file", "longer than what replaces it");
    EXPECT_TRUE(files.writeFile(file, {'n', 'e', 'w'}));
    std::string content;
    std::getline(std::ifstream(file), content);
    EXPECT_EQ(content, "new");

    fs::create_symlink("/dev/full", folder_ / "full");
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    const std::pair<fs::path, int> cases[] = {
        {folder_ / "full", ENOSPC}, {folder_ / "cache", EISDIR},
        {file / "below", ENOTDIR},  {folder_ / "missing/file", ENOENT},
        {folder_ / "pipe", ENXIO},  {folder_ / std::string(300, 'a'), ENAMETOOLONG}};
    for (const auto& [path, code] : cases) {
        const auto written = files.writeFile(path, {'x'});
        ASSERT_FALSE(written) << path;
        EXPECT_EQ(written.error().code, code) << path;
    }
}

TEST_F(MachineServices, theFirstIdentityThatIsTextCounts)
{
    const fs::path good = write("good", "0123456789abcdef\n");
    for (const fs::path& bad :
         {folder_ / "missing", folder_, write("binary", "\xFF\xFE"), write("huge", std::string(5000, 'x'))}) {
        EXPECT_EQ(MachineHardware({bad, good}).platformExpertSerial(), "0123456789abcdef\n") << bad;
        EXPECT_EQ(MachineHardware({bad}).platformExpertSerial(), std::nullopt) << bad;
    }
    EXPECT_EQ(MachineHardware({write("blank", ""), good}).platformExpertSerial(), "");
}

} // namespace

} // namespace orken::desktop
