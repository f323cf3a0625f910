#include "contract/ContractDesktop.h"

#include <algorithm>
#include <atomic>
#include <cerrno>

namespace orken {

TEST_P(Contract, aFolderIsRemovedWithItsContents)
{
    const auto folder = desktop->makeFolder();
    const auto listed = ports.files.contentsOfDirectory(folder);
    ASSERT_TRUE(listed);
    auto names = listed.value();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"a", "b"}));

    EXPECT_TRUE(ports.files.writeFile(folder / "b" / "d", {'x'}));
    EXPECT_EQ(ports.files.contentsOfDirectory(folder / "b").value().size(), 2U);
    EXPECT_EQ(ports.files.writeFile(folder / "b", {'x'}).error().code, EISDIR);
    EXPECT_TRUE(ports.files.removeItem(folder / "b"));
    EXPECT_EQ(ports.files.contentsOfDirectory(folder / "b").error().code, ENOENT);
    EXPECT_EQ(ports.files.removeItem(folder / "b").error().code, ENOENT);
    EXPECT_EQ(ports.files.contentsOfDirectory(folder / "a").error().code, ENOTDIR);
    EXPECT_EQ(ports.files.contentsOfDirectory(folder).value(), std::vector<std::string>{"a"});
}

TEST_P(Contract, aRequestThatCannotBeMadeCompletesOnce)
{
    for (const std::string& address : {desktop->refusedAddress(), std::string("ftp://a.example/"), std::string("")}) {
        std::atomic<int> completions = 0;
        std::optional<DataTaskResult> result;
        ports.urlSession.startDataTask(address, [&](DataTaskResult given) {
            result = std::move(given);
            ++completions;
        });
        ASSERT_TRUE(runUntil([&] { return completions == 1; })) << address;
        settle();
        EXPECT_EQ(completions, 1);
        EXPECT_FALSE(*result) << address;
        EXPECT_FALSE(ports.contentsReader.readText(address)) << address;
    }
}

TEST_P(Contract, aBrowserViewHasNoPageUntilItIsGivenOneItCanParse)
{
    launch();
    const auto view = ports.browserViews.make();
    const auto has = [&] { return view->url().has_value() || view->title().has_value(); };
    EXPECT_FALSE(has());
    view->load({.url = "https://a.example/?q=a b"});
    settle();
    EXPECT_FALSE(has());
    const std::string refused = desktop->refusedAddress();
    view->load({.url = refused});
    EXPECT_EQ(view->url(), refused);
    EXPECT_TRUE(runUntil([&] { return !view->url(); })) << "no address after a failed first load";
}

TEST_P(Contract, aScriptCompletesOnce)
{
    launch();
    const auto view = ports.browserViews.make();
    int completions = 0;
    const auto count = [&](const ScriptResult& result) {
        EXPECT_TRUE(result && !result.value()) << "undefined is absent and no error";
        ++completions;
    };
    view->evaluateJavaScript("var x = 1;", count);
    view->callAsyncJavaScript("await null;", count);
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(runUntil([&] { return completions == 2; }));
    settle();
    EXPECT_EQ(completions, 2);
}

TEST_P(Contract, websiteDataIsFetchedLater)
{
    launch();
    bool fetched = false;
    ports.websiteData.fetchDataRecords(kAllWebsiteDataTypes, [&](const auto&) { fetched = true; });
    EXPECT_FALSE(fetched);
    EXPECT_TRUE(runUntil([&] { return fetched; }));
}

} // namespace orken
