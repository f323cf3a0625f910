#include "linux/gtk/FrameCallbacks.h"

#include <utility>

namespace orken::desktop {

namespace {

struct Idle {
    std::function<void()> callback;
    std::vector<guint>* idles;
    guint id = 0;
};

guint addIdle(int priority, std::vector<guint>& idles, std::function<void()> callback)
{
    auto* idle = new Idle{.callback = std::move(callback), .idles = &idles};
    auto run = +[](gpointer data) -> gboolean {
        auto* self = static_cast<Idle*>(data);
        std::erase(*self->idles, self->id);
        // The callback may end its window and with it the list.
        const auto work = std::move(self->callback);
        work();
        return G_SOURCE_REMOVE;
    };
    idle->id = g_idle_add_full(priority, run, idle, [](gpointer data) { delete static_cast<Idle*>(data); });
    idles.push_back(idle->id);
    return idle->id;
}

} // namespace

FrameCallbacks::~FrameCallbacks()
{
    for (const guint id : std::exchange(idles_, {})) {
        g_source_remove(id);
    }
    if (tick_ != 0) {
        gtk_widget_remove_tick_callback(GTK_WIDGET(window_), tick_);
    }
}

void FrameCallbacks::beforeNext(std::function<void()> callback)
{
    addIdle(GDK_PRIORITY_REDRAW - 1, idles_, std::move(callback));
}

void FrameCallbacks::afterFirst(std::function<void()> callback)
{
    if (hasPainted_) {
        addIdle(G_PRIORITY_DEFAULT, idles_, std::move(callback));
        return;
    }
    waiting_.push_back(std::move(callback));
    if (tick_ != 0) {
        return;
    }
    // Asks for a frame, and runs before that frame is painted.
    auto onTick = +[](GtkWidget*, GdkFrameClock* clock, gpointer data) -> gboolean {
        auto* self = static_cast<FrameCallbacks*>(data);
        self->tick_ = 0;
        self->afterPaint_ = SignalConnection::make<void(GdkFrameClock*)>(
            clock, "after-paint", [self](GdkFrameClock*) { self->framePainted(); });
        return G_SOURCE_REMOVE;
    };
    tick_ = gtk_widget_add_tick_callback(GTK_WIDGET(window_), onTick, this, nullptr);
}

void FrameCallbacks::framePainted()
{
    hasPainted_ = true;
    // The callbacks may block the main thread: the frame has to be with the display server before.
    gdk_display_flush(gtk_widget_get_display(GTK_WIDGET(window_)));
    // Not from inside the frame clock, which could not draw in a nested loop.
    addIdle(G_PRIORITY_DEFAULT, idles_, [painted = std::exchange(waiting_, {})] {
        for (const auto& callback : painted) {
            callback();
        }
    });
    afterPaint_.disconnect();
}

} // namespace orken::desktop
