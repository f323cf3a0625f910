#pragma once

#include "linux/loop/Alive.h"
#include "platform/WebsiteDataStore.h"

#include <webkit/webkit.h>

#include <cstddef>

namespace orken::desktop {

/// Website data of the engine's session. A record's handle is a `WebKitWebsiteData`. Main thread only.
class WebKitDataStore final : public WebsiteDataStore {
public:
    /// `manager` outlives this.
    explicit WebKitDataStore(WebKitWebsiteDataManager* manager) : manager_(manager) {}

    void fetchDataRecords(WebsiteDataTypes types,
                          std::function<void(std::vector<WebsiteDataRecord>)> completion) override;
    void removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& records,
                    std::function<void()> completion) override;

    [[nodiscard]] std::size_t pendingOperations() const { return pending_; }

private:
    WebKitWebsiteDataManager* manager_;
    std::size_t pending_ = 0;
    Alive alive_;
};

} // namespace orken::desktop
