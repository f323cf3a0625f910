#pragma once

#include <gtk/gtk.h>

namespace orken::desktop {

/// Destroys a window. The toolkit (seen with 4.8) leaves the window's handler for "compute-size" on its surface, which
/// outlives the window for as long as an event of it is under way: a layout at that moment would call into freed
/// memory. Main thread only.
inline void destroyWindow(GtkWindow* window)
{
    if (GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window))) {
        constexpr auto kMatch = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_DATA);
        const guint computeSize = g_signal_lookup("compute-size", G_OBJECT_TYPE(surface));
        g_signal_handlers_disconnect_matched(surface, kMatch, computeSize, 0, nullptr, nullptr, window);
    }
    gtk_window_destroy(window);
}

} // namespace orken::desktop
