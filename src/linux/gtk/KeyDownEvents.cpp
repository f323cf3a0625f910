#include "linux/gtk/KeyDownEvents.h"

#include "linux/loop/GObjectPtr.h"

namespace orken::desktop {

namespace {

gboolean keyPressed(GtkEventControllerKey*, guint key, guint, GdkModifierType, gpointer monitors)
{
    const KeyEvent event{.keyCode = key == GDK_KEY_Escape ? kEscapeKeyCode : kOtherKeyCode};
    return static_cast<KeyMonitors*>(monitors)->handle(event) == KeyHandling::swallow ? GDK_EVENT_STOP
                                                                                      : GDK_EVENT_PROPAGATE;
}

} // namespace

KeyDownEvents::KeyDownEvents(KeyMonitors& monitors) : monitors_(monitors)
{
    GListModel* toplevels = gtk_window_get_toplevels();
    toplevelsChanged_ = SignalConnection::make<void(GListModel*, guint, guint, guint)>(
        toplevels, "items-changed", [this](GListModel*, guint at, guint, guint added) { watch(at, added); });
    watch(0, g_list_model_get_n_items(toplevels));
}

void KeyDownEvents::watch(guint first, guint count)
{
    constexpr const char* kWatched = "orken-keys";
    for (guint i = first; i < first + count; ++i) {
        const auto window =
            GObjectPtr<GtkWidget>::adopt(static_cast<GtkWidget*>(g_list_model_get_item(gtk_window_get_toplevels(), i)));
        // The list may report a window anew when others before it go.
        if (!window || g_object_get_data(G_OBJECT(window.get()), kWatched)) {
            continue;
        }
        g_object_set_data(G_OBJECT(window.get()), kWatched, &monitors_);
        GtkEventController* controller = gtk_event_controller_key_new();
        // On the way down: in the other direction the page would see the key first.
        gtk_event_controller_set_propagation_phase(controller, GTK_PHASE_CAPTURE);
        g_signal_connect(controller, "key-pressed", G_CALLBACK(keyPressed), &monitors_);
        gtk_widget_add_controller(window.get(), controller);
    }
}

} // namespace orken::desktop
