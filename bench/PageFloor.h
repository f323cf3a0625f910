#pragma once

#include "Floor.h"

#include <webkit/webkit.h>

namespace orken::bench {

/// A bare view of the session in a full-screen window; takes the session over. It loads nothing yet.
inline WebKitWebView* showView(GtkApplication* application, WebKitNetworkSession* session)
{
    webkit_network_session_set_tls_errors_policy(session, WEBKIT_TLS_ERRORS_POLICY_IGNORE);
    auto* view = WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, nullptr));
    g_object_unref(session);
    if (!hasRenderNode()) {
        webkit_settings_set_hardware_acceleration_policy(webkit_web_view_get_settings(view),
                                                         WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    }
    GtkWidget* window = gtk_application_window_new(application);
    gtk_window_set_title(GTK_WINDOW(window), "floor");
    gtk_window_set_child(GTK_WINDOW(window), GTK_WIDGET(view));
    gtk_window_fullscreen(GTK_WINDOW(window));
    gtk_window_present(GTK_WINDOW(window));
    return view;
}

} // namespace orken::bench
