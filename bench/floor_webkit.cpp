// The least that the first page costs: the engine, one full-screen view, the address given as the only argument.

#include "Floor.h"

#include <cstdio>

#include <webkit/webkit.h>

namespace {

// Site data on the disk and in the user's folders, as the client has it.
WebKitNetworkSession* makeSession()
{
    const std::string data = std::string(g_get_user_data_dir()) + "/com.orken.floor";
    const std::string cache = std::string(g_get_user_cache_dir()) + "/com.orken.floor";
    WebKitNetworkSession* session = webkit_network_session_new(data.c_str(), cache.c_str());
    webkit_network_session_set_tls_errors_policy(session, WEBKIT_TLS_ERRORS_POLICY_IGNORE);
    return session;
}

void activate(GtkApplication* application, const char* address)
{
    WebKitNetworkSession* session = makeSession();
    auto* view = WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, nullptr));
    g_object_unref(session);
    if (!orken::bench::hasRenderNode()) {
        webkit_settings_set_hardware_acceleration_policy(webkit_web_view_get_settings(view),
                                                         WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    }

    GtkWidget* window = gtk_application_window_new(application);
    gtk_window_set_title(GTK_WINDOW(window), "floor");
    gtk_window_set_child(GTK_WINDOW(window), GTK_WIDGET(view));
    gtk_window_fullscreen(GTK_WINDOW(window));
    gtk_window_present(GTK_WINDOW(window));
    webkit_web_view_load_uri(view, address);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("usage: floor_webkit ADDRESS\n", stderr);
        return 2;
    }
    return orken::bench::runFloor(G_CALLBACK(activate), arguments[1]);
}
