#include "linux/gtk/VisibilityWatch.h"

#include <utility>

namespace orken::desktop {

namespace {

GdkSurface* surfaceOf(GtkWidget* widget)
{
    GtkNative* native = gtk_widget_get_native(widget);
    return native ? gtk_native_get_surface(native) : nullptr;
}

bool isMinimised(GdkSurface* surface)
{
    return surface && GDK_IS_TOPLEVEL(surface) &&
           (gdk_toplevel_get_state(GDK_TOPLEVEL(surface)) & GDK_TOPLEVEL_STATE_MINIMIZED) != 0;
}

} // namespace

VisibilityWatch::VisibilityWatch(GtkWidget* widget, std::function<void()> changed)
    : widget_(widget), changed_(std::move(changed))
{
    mapping_.push_back(SignalConnection::make<void(GtkWidget*)>(widget, "map", [this](GtkWidget*) { mapped(); }));
    mapping_.push_back(SignalConnection::make<void(GtkWidget*)>(widget, "unmap", [this](GtkWidget*) { unmapped(); }));
    if (gtk_widget_get_mapped(widget)) {
        mapped();
    }
}

void VisibilityWatch::mapped()
{
    surroundings_.clear();
    const auto watch = [this](gpointer object, const char* signal) {
        surroundings_.push_back(SignalConnection::make<void(GObject*, GParamSpec*)>(
            object, signal, [this](GObject*, GParamSpec*) { update(); }));
    };
    for (GtkWidget* place = widget_; place; place = gtk_widget_get_parent(place)) {
        watch(place, "notify::opacity");
    }
    if (GdkSurface* surface = surfaceOf(widget_); surface && GDK_IS_TOPLEVEL(surface)) {
        watch(surface, "notify::state");
    }
    update();
}

void VisibilityWatch::unmapped()
{
    surroundings_.clear();
    update();
}

void VisibilityWatch::update()
{
    const bool isVisible = currentVisibility();
    if (std::exchange(isVisible_, isVisible) != isVisible) {
        changed_();
    }
}

bool VisibilityWatch::currentVisibility() const
{
    for (GtkWidget* place = widget_; place; place = gtk_widget_get_parent(place)) {
        if (gtk_widget_get_opacity(place) <= 0) {
            return false;
        }
    }
    // The signal comes before the widget counts as unmapped.
    return !surroundings_.empty() && !isMinimised(surfaceOf(widget_));
}

} // namespace orken::desktop
