#include "linux/gtk/FrameTicks.h"

#include <algorithm>
#include <utility>

namespace orken::desktop {

namespace {

/// A sixtieth of a second, on average also where the screen has more frames than that; frame times waver.
constexpr gint64 kInterval = 16667;
constexpr gint64 kTolerance = 1500;
constexpr double kMicroseconds = 1e6;

} // namespace

void FrameTicks::start()
{
    if (callback_ != 0) {
        return;
    }
    last_ = 0;
    auto onTick = +[](GtkWidget*, GdkFrameClock* clock, gpointer data) -> gboolean {
        static_cast<FrameTicks*>(data)->came(gdk_frame_clock_get_frame_time(clock));
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

void FrameTicks::came(gint64 frameTime)
{
    if (last_ != 0 && frameTime + kTolerance < due_) {
        return;
    }
    const gint64 elapsed = last_ == 0 ? 0 : frameTime - last_;
    due_ = std::max((last_ == 0 ? frameTime : due_) + kInterval, frameTime);
    last_ = frameTime;
    tick_(Seconds{static_cast<double>(elapsed) / kMicroseconds});
}

} // namespace orken::desktop
