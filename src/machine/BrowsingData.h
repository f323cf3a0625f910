#pragma once

#include "platform/CookieStorage.h"
#include "platform/Files.h"
#include "platform/WebsiteDataStore.h"

#include <string>

namespace orken {

/// What a session has left behind on the machine. Main thread only.
class BrowsingData {
public:
    struct Ports {
        CookieStorage& cookies;
        WebsiteDataStore& websiteData;
        Files& files;
    };

    BrowsingData(const Ports& ports, std::string bundleIdentifier)
        : ports_(ports), bundleIdentifier_(std::move(bundleIdentifier))
    {
    }

    /// Clears cookies, the engine's website data and the client's caches folder (its contents, not the folder). Reports
    /// nothing. Cookies and caches are gone on return; the website data's removal has only been started.
    void clearBrowsingData();

private:
    void removeWebsiteData();
    void emptyCachesFolder();

    Ports ports_;
    std::string bundleIdentifier_;
};

} // namespace orken
