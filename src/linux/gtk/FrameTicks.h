#pragma once

#include "linux/animation/FrameLimiter.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// Calls before the frames of the screen, at most 60 times a second, between `start` and `stop`. Main thread only.
class FrameTicks {
public:
    /// The widget must outlive this object. `tick` is given the time since the call before, or 0 after a start, and may
    /// stop the ticks, but not end this object.
    FrameTicks(GtkWidget* widget, std::function<void(Seconds)> tick) : widget_(widget), tick_(std::move(tick)) {}

    ~FrameTicks() { stop(); }

    FrameTicks(const FrameTicks&) = delete;
    FrameTicks& operator=(const FrameTicks&) = delete;

    void start();
    void stop();

private:
    GtkWidget* widget_;
    std::function<void(Seconds)> tick_;
    guint callback_ = 0;
    FrameLimiter limiter_;
};

} // namespace orken::desktop
