#include "linux/gtk/FrameTicks.h"

#include <utility>

namespace orken::desktop {

namespace {

/// A little less than a sixtieth of a second: frame times waver.
constexpr gint64 kShortestInterval = 15000;
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
    const gint64 elapsed = last_ == 0 ? 0 : frameTime - last_;
    if (last_ != 0 && elapsed < kShortestInterval) {
        return;
    }
    last_ = frameTime;
    tick_(Seconds{static_cast<double>(elapsed) / kMicroseconds});
}

} // namespace orken::desktop
