#pragma once

#include "linux/engine/EngineModule.h"
#include "linux/engine/EngineSession.h"
#include "linux/engine/SpareView.h"
#include "linux/engine/WebKitBrowserView.h"
#include "linux/engine/WebKitDataStore.h"

#include <memory>
#include <vector>

namespace orken::desktop {

/// The engine's module: one session, its views and its website data. Main thread only.
class Engine final : public EngineModule, public BrowserViews {
public:
    explicit Engine(const EngineSettings& settings);

    void warmUp() override;

    [[nodiscard]] BrowserViews& browserViews() override { return *this; }

    [[nodiscard]] WebsiteDataStore& websiteData() override { return websiteData_; }

    [[nodiscard]] std::size_t pendingDataOperations() const override { return websiteData_.pendingOperations(); }

    void stop() override;

    [[nodiscard]] std::shared_ptr<BrowserView> make() override;

private:
    EngineSettings settings_;
    EngineSession session_;
    WebKitDataStore websiteData_;
    std::unique_ptr<SpareView> spare_;
    std::vector<std::weak_ptr<WebKitBrowserView>> views_;
};

} // namespace orken::desktop
