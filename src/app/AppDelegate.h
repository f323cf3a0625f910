#pragma once

#include "machine/BrowsingData.h"
#include "platform/Application.h"

namespace orken {

/// Clears the browsing data when the application is about to terminate. Main thread only.
class AppDelegate final : public ApplicationDelegate {
public:
    explicit AppDelegate(BrowsingData& browsingData) : browsingData_(browsingData) {}

    void applicationWillTerminate() override { browsingData_.clearBrowsingData(); }

private:
    BrowsingData& browsingData_;
};

} // namespace orken
