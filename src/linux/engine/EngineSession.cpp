#include "linux/engine/EngineSession.h"

#include "linux/engine/MemoryLimits.h"

#include <glib/gstdio.h>

#include <cerrno>

namespace orken::desktop {

namespace {

bool isUsableFolder(const std::string& path, const EngineSettings& settings)
{
    if (g_mkdir_with_parents(path.c_str(), 0700) == 0 && g_access(path.c_str(), W_OK | X_OK) == 0) {
        return true;
    }
    settings.report("orken: the web engine keeps site data in memory: " + path + ": " + g_strerror(errno));
    return false;
}

GObjectPtr<WebKitNetworkSession> makeSession(const EngineSettings& settings)
{
    const std::string data = std::string(g_get_user_data_dir()) + "/" + settings.bundleIdentifier;
    const std::string cache = std::string(g_get_user_cache_dir()) + "/" + settings.bundleIdentifier;
    if (!isUsableFolder(data, settings) || !isUsableFolder(cache, settings)) {
        return GObjectPtr<WebKitNetworkSession>::adopt(webkit_network_session_new_ephemeral());
    }
    auto session = GObjectPtr<WebKitNetworkSession>::adopt(webkit_network_session_new(data.c_str(), cache.c_str()));
    // Without a file the engine forgets cookies at the end, though it keeps every other kind of site data.
    webkit_cookie_manager_set_persistent_storage(webkit_network_session_get_cookie_manager(session.get()),
                                                 (data + "/cookies.sqlite").c_str(),
                                                 WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
    return session;
}

} // namespace

EngineSession::EngineSession(const EngineSettings& settings)
    : context_(makeLimitedContext()), session_(makeSession(settings)), hasRenderNode_(settings.hasRenderNode)
{
    // Every challenge for a password is cancelled, so stored ones are never used; looking them up could only bring up
    // the key ring's own prompt.
    webkit_network_session_set_persistent_credential_storage_enabled(session_.get(), FALSE);

    // The engine would save attachments and links with a download attribute without asking.
    downloads_ = SignalConnection::make<void(WebKitNetworkSession*, WebKitDownload*)>(
        session_.get(), "download-started",
        [](WebKitNetworkSession*, WebKitDownload* download) { webkit_download_cancel(download); });
}

GObjectPtr<WebKitWebView> EngineSession::makeView() const
{
    const auto settings = GObjectPtr<WebKitSettings>::adopt(webkit_settings_new());
    // Full screen belongs to the window: a page's element would take the whole window there and back out of it.
    webkit_settings_set_enable_fullscreen(settings.get(), FALSE);
    if (!hasRenderNode_) {
        webkit_settings_set_hardware_acceleration_policy(settings.get(), WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    }
    return GObjectPtr<WebKitWebView>::share(
        WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "web-context", context_.get(), "network-session",
                                     session_.get(), "settings", settings.get(), nullptr)));
}

} // namespace orken::desktop
