#pragma once

#include "platform/BrowserView.h"
#include "platform/WebsiteDataStore.h"

#include <functional>
#include <string>

namespace orken::desktop {

/// What the engine's module offers once it is loaded. Main thread only.
class EngineModule {
public:
    EngineModule() = default;
    EngineModule(const EngineModule&) = delete;
    EngineModule& operator=(const EngineModule&) = delete;
    virtual ~EngineModule() = default;

    /// Makes a spare view ready in which a blank page has finished loading; the next view that is made is that one.
    /// Connects to the expected host but requests nothing, and leaves no site data.
    virtual void warmUp() = 0;

    [[nodiscard]] virtual BrowserViews& browserViews() = 0;
    [[nodiscard]] virtual WebsiteDataStore& websiteData() = 0;

    /// Fetches and removals of website data that have not been answered yet. The application waits for them at its end.
    [[nodiscard]] virtual std::size_t pendingDataOperations() const = 0;

    /// No navigation delegate is called from here on; website data can still be fetched and removed.
    virtual void stop() = 0;
};

/// What the engine's module needs of the program that loads it.
struct EngineSettings {
    /// Names the engine's own folders below the user's data and cache folders.
    std::string bundleIdentifier;
    /// Of the first page, host or host:port; empty when it is not known.
    std::string expectedHost;
    /// There is a GPU to draw with; without one the engine draws in software.
    bool hasRenderNode = false;
    /// One diagnostic line on standard error.
    std::function<void(const std::string& line)> report;
};

/// The module's only exported function. The caller owns the result and never unloads the module.
using MakeEngine = EngineModule* (*)(const EngineSettings& settings);
inline constexpr const char* kMakeEngineSymbol = "orkenMakeEngine";

} // namespace orken::desktop
