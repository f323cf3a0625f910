#pragma once

#include "linux/engine/EngineModule.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/loop/SignalConnection.h"

#include <webkit/webkit.h>

namespace orken::desktop {

/// The engine's side of one run of the client: where site data lives, what is true for every connection, and how its
/// views are made. Main thread only.
class EngineSession {
public:
    /// Site data is kept below the user's data and cache folders; where those cannot be written the session keeps
    /// everything in memory and says so through `settings.report`.
    explicit EngineSession(const EngineSettings& settings);

    /// A view of this session that is in no window yet.
    [[nodiscard]] GObjectPtr<WebKitWebView> makeView() const;

    [[nodiscard]] WebKitWebsiteDataManager* dataManager() const
    {
        return webkit_network_session_get_website_data_manager(session_.get());
    }

private:
    GObjectPtr<WebKitWebContext> context_;
    GObjectPtr<WebKitNetworkSession> session_;
    bool hasRenderNode_;
    SignalConnection downloads_;
};

} // namespace orken::desktop
