#pragma once

#include "platform/WebsiteDataStore.h"

#include <webkit/webkit.h>

#include <cstddef>
#include <memory>

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

    [[nodiscard]] std::size_t pendingOperations() const { return *pending_; }

private:
    WebKitWebsiteDataManager* manager_;
    /// Held weakly by the replies, which call nobody back once the store has gone.
    std::shared_ptr<std::size_t> pending_ = std::make_shared<std::size_t>(0);
};

} // namespace orken::desktop
