#include "linux/gtk/DesktopScreens.h"

#include "linux/loop/GObjectPtr.h"

namespace orken::desktop {

namespace {

GObjectPtr<GdkMonitor> monitorAt(GListModel* monitors, guint index)
{
    return GObjectPtr<GdkMonitor>::adopt(static_cast<GdkMonitor*>(g_list_model_get_item(monitors, index)));
}

} // namespace

void DesktopScreens::start()
{
    listChanged_ = SignalConnection::make<void(GListModel*, guint, guint, guint)>(
        gdk_display_get_monitors(gdk_display_get_default()), "items-changed", [this](GListModel*, guint, guint, guint) {
            watchMonitors();
            changed();
        });
    watchMonitors();
}

void DesktopScreens::watchMonitors()
{
    monitorChanged_.clear();
    GListModel* monitors = gdk_display_get_monitors(gdk_display_get_default());
    for (guint i = 0; i < g_list_model_get_n_items(monitors); ++i) {
        const auto monitor = monitorAt(monitors, i);
        for (const char* signal : {"notify::geometry", "notify::scale-factor"}) {
            monitorChanged_.push_back(SignalConnection::make<void(GdkMonitor*, GParamSpec*)>(
                monitor.get(), signal, [this](GdkMonitor*, GParamSpec*) { changed(); }));
        }
    }
}

void DesktopScreens::changed()
{
    if (!notification_.isPending()) {
        notification_ = Source::idle(G_PRIORITY_DEFAULT, [this] {
            notifications_.post(NotificationName::applicationDidChangeScreenParameters);
        });
    }
}

std::optional<Rect> DesktopScreens::mainScreenFrame() const
{
    GdkDisplay* display = gdk_display_get_default();
    GListModel* monitors = gdk_display_get_monitors(display);
    GtkWindow* window = keyWindow_();
    GdkSurface* surface = window ? gtk_native_get_surface(GTK_NATIVE(window)) : nullptr;
    GdkMonitor* monitor = surface ? gdk_display_get_monitor_at_surface(display, surface) : nullptr;
    const auto first = monitorAt(monitors, 0);
    if (!monitor) {
        monitor = first.get();
    }
    if (!monitor) {
        return std::nullopt;
    }
    GdkRectangle geometry{};
    gdk_monitor_get_geometry(monitor, &geometry);
    return Rect{.x = static_cast<double>(geometry.x),
                .y = static_cast<double>(geometry.y),
                .width = static_cast<double>(geometry.width),
                .height = static_cast<double>(geometry.height)};
}

} // namespace orken::desktop
