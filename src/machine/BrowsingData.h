#pragma once

#include "platform/CookieStorage.h"
#include "platform/Files.h"
#include "platform/WebsiteDataStore.h"

#include <string>

namespace orken {

/// Clears what the session has left behind: cookies, the engine's website data and the client's caches folder (its
/// contents, not the folder). Reports nothing. Cookies and caches are gone on return; the website data's removal is
/// only started. Main thread only.
void clearBrowsingData(CookieStorage& cookies, WebsiteDataStore& websiteData, Files& files,
                       const std::string& kAppBundleIdentifier);

} // namespace orken
