#include "app/AppDelegate.h"

#include "machine/BrowsingData.h"

namespace orken {

void AppDelegate::applicationWillTerminate()
{
    clearBrowsingData(cookies_, websiteData_, files_, kAppBundleIdentifier_);
}

} // namespace orken
