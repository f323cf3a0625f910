#include "machine/BrowsingData.h"

#include <cerrno>

namespace orken {

namespace {

void removeWebsiteData(WebsiteDataStore& store)
{
    store.fetchDataRecords(kAllWebsiteDataTypes, [&store](const std::vector<WebsiteDataRecord>& records) {
        for (const WebsiteDataRecord& record : records) {
            store.removeData(record.dataTypes, {record}, [] {});
        }
    });
}

void emptyCachesFolder(Files& files, const std::string& name)
{
    const auto directories = files.cachesDirectories();
    if (directories.empty()) {
        return;
    }
    const auto folder = directories.front() / name;
    const auto entries = files.contentsOfDirectory(folder);
    if (!entries) {
        return;
    }
    for (const std::string& entry : entries.value()) {
        const auto removed = files.removeItem(folder / entry);
        // The engine's processes still tidy up in there: what has vanished meanwhile is as good as removed.
        if (!removed && removed.error().code != ENOENT) {
            return;
        }
    }
}

} // namespace

void clearBrowsingData(CookieStorage& cookies, WebsiteDataStore& websiteData, Files& files,
                       const std::string& kAppBundleIdentifier)
{
    cookies.removeAllCookies();
    removeWebsiteData(websiteData);
    emptyCachesFolder(files, kAppBundleIdentifier);
}

} // namespace orken
