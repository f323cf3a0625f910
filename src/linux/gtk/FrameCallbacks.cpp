#include "linux/gtk/FrameCallbacks.h"

#include <utility>

namespace orken::desktop {

FrameCallbacks::~FrameCallbacks()
{
    if (tickCallback_ != 0) {
        gtk_widget_remove_tick_callback(GTK_WIDGET(window_), tickCallback_);
    }
}

void FrameCallbacks::beforeNext(std::function<void()> callback)
{
    addIdle(GDK_PRIORITY_REDRAW - 1, std::move(callback));
}

void FrameCallbacks::afterFirst(std::function<void()> callback)
{
    if (hasPainted_) {
        addIdle(G_PRIORITY_DEFAULT, std::move(callback));
        return;
    }
    waiting_.push_back(std::move(callback));
    if (tickCallback_ != 0) {
        return;
    }
    // Asks for a frame, and runs before that frame is painted.
    auto onTick = +[](GtkWidget*, GdkFrameClock* clock, gpointer data) -> gboolean {
        auto* self = static_cast<FrameCallbacks*>(data);
        self->tickCallback_ = 0;
        self->afterPaint_ = SignalConnection::make<void(GdkFrameClock*)>(
            clock, "after-paint", [self](GdkFrameClock*) { self->framePainted(); });
        return G_SOURCE_REMOVE;
    };
    tickCallback_ = gtk_widget_add_tick_callback(GTK_WIDGET(window_), onTick, this, nullptr);
}

void FrameCallbacks::framePainted()
{
    hasPainted_ = true;
    // The callbacks may block the main thread: the frame has to be with the display server before.
    gdk_display_flush(gtk_widget_get_display(GTK_WIDGET(window_)));
    // Not from inside the frame clock, which could not draw in a nested loop.
    addIdle(G_PRIORITY_DEFAULT, [painted = std::exchange(waiting_, {})] {
        for (const auto& callback : painted) {
            callback();
        }
    });
    afterPaint_.disconnect();
}

/// The callback may end its window and with it the list.
void FrameCallbacks::addIdle(int priority, std::function<void()> callback)
{
    std::erase_if(idles_, [](const Source& idle) { return !idle.isPending(); });
    idles_.push_back(Source::idle(priority, std::move(callback)));
}

} // namespace orken::desktop
