#pragma once

#include "linux/engine/EngineModule.h"
#include "linux/loop/Source.h"
#include "platform/BrowserView.h"
#include "platform/WebsiteDataStore.h"

#include <functional>
#include <memory>
#include <vector>

namespace orken::desktop {

/// The web engine's ports in front of a module that is loaded late: linking the engine would keep the start window
/// from the screen. Whoever needs the engine before that idle moment loads it then. Main thread only.
class LazyEngine final : public BrowserViews, public WebsiteDataStore {
public:
    explicit LazyEngine(EngineSettings settings) : settings_(std::move(settings)) {}

    ~LazyEngine() override;

    /// Loads the engine and warms it up once the main loop has nothing else to do.
    void loadWhenIdle();

    /// Ends the process with a line on standard error when the engine cannot be loaded: there is no session without.
    [[nodiscard]] std::shared_ptr<BrowserView> make() override;

    /// An engine that cannot be loaded has no records.
    void fetchDataRecords(WebsiteDataTypes types,
                          std::function<void(std::vector<WebsiteDataRecord>)> completion) override;
    void removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& records,
                    std::function<void()> completion) override;

    [[nodiscard]] bool isRemovingData() const { return engine_ && engine_->pendingDataOperations() > 0; }

    /// The engine tells the product nothing more.
    void stop();

private:
    /// Null when it cannot be loaded.
    EngineModule* load();

    EngineSettings settings_;
    std::unique_ptr<EngineModule> engine_;
    Source loading_;
};

} // namespace orken::desktop
