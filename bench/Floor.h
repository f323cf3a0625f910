#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include <csignal>
#include <glib-unix.h>
#include <gtk/gtk.h>

namespace orken::bench {

/// Whether the machine has a graphics card that the toolkit could render with.
inline bool hasRenderNode()
{
    std::error_code unreadable;
    for (const auto& entry : std::filesystem::directory_iterator("/dev/dri", unreadable)) {
        if (entry.path().filename().string().starts_with("renderD")) {
            return true;
        }
    }
    return false;
}

/// Renders as the client does: in software where there is no card, unless the user has decided. Call it before GTK.
inline void chooseRenderer()
{
    if (!hasRenderNode()) {
        setenv("GSK_RENDERER", "cairo", 0);
    }
}

/// Runs an application whose one window is made by `activate`, until that is closed or SIGTERM comes.
inline int runFloor(GCallback activate, gpointer data)
{
    chooseRenderer();
    GtkApplication* application = gtk_application_new("com.orken.floor", G_APPLICATION_NON_UNIQUE);
    g_signal_connect(application, "activate", activate, data);
    g_unix_signal_add(
        SIGTERM,
        [](gpointer running) -> gboolean {
            g_application_quit(G_APPLICATION(running));
            return G_SOURCE_REMOVE;
        },
        application);
    const int status = g_application_run(G_APPLICATION(application), 0, nullptr);
    g_object_unref(application);
    return status;
}

} // namespace orken::bench
