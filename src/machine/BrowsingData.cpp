#include "machine/BrowsingData.h"

#include <cerrno>

namespace orken {

void BrowsingData::clearBrowsingData()
{
    ports_.cookies.removeAllCookies();
    removeWebsiteData();
    emptyCachesFolder();
}

void BrowsingData::removeWebsiteData()
{
    WebsiteDataStore& store = ports_.websiteData;
    store.fetchDataRecords(kAllWebsiteDataTypes, [&store](const std::vector<WebsiteDataRecord>& records) {
        for (const WebsiteDataRecord& record : records) {
            store.removeData(record.dataTypes, {record}, [] {});
        }
    });
}

void BrowsingData::emptyCachesFolder()
{
    const auto directories = ports_.files.cachesDirectories();
    if (directories.empty()) {
        return;
    }
    const auto folder = directories.front() / bundleIdentifier_;
    const auto entries = ports_.files.contentsOfDirectory(folder);
    if (!entries) {
        return;
    }
    for (const std::string& entry : entries.value()) {
        const auto removed = ports_.files.removeItem(folder / entry);
        // The engine's processes still tidy up in there: what has vanished meanwhile is as good as removed.
        if (!removed && removed.error().code != ENOENT) {
            return;
        }
    }
}

} // namespace orken
