#pragma once

#include "platform/Application.h"
#include "platform/CookieStorage.h"
#include "platform/Files.h"
#include "platform/WebsiteDataStore.h"

#include <string>

namespace orken {

/// Clears the browsing data when the application is about to terminate. Main thread only.
class AppDelegate final : public ApplicationDelegate {
public:
    AppDelegate(CookieStorage& cookies, WebsiteDataStore& websiteData, Files& files, std::string kAppBundleIdentifier)
        : cookies_(cookies), websiteData_(websiteData), files_(files),
          kAppBundleIdentifier_(std::move(kAppBundleIdentifier))
    {
    }

    void applicationWillTerminate() override;

private:
    CookieStorage& cookies_;
    WebsiteDataStore& websiteData_;
    Files& files_;
    std::string kAppBundleIdentifier_;
};

} // namespace orken
