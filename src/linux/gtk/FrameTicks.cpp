#include "linux/gtk/FrameTicks.h"

#include <utility>

namespace orken::desktop {

void FrameTicks::start()
{
    if (callback_ != 0) {
        return;
    }
    limiter_ = {};
    auto onTick = +[](GtkWidget*, GdkFrameClock* clock, gpointer data) -> gboolean {
        auto* self = static_cast<FrameTicks*>(data);
        if (const auto elapsed = self->limiter_.choose(gdk_frame_clock_get_frame_time(clock))) {
            self->tick_(*elapsed);
        }
        return G_SOURCE_CONTINUE;
    };
    callback_ = gtk_widget_add_tick_callback(widget_, onTick, this, nullptr);
}

void FrameTicks::stop()
{
    if (const guint callback = std::exchange(callback_, 0)) {
        gtk_widget_remove_tick_callback(widget_, callback);
    }
}

} // namespace orken::desktop
