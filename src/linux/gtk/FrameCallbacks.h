#pragma once

#include "linux/SignalConnection.h"

#include <gtk/gtk.h>

#include <functional>
#include <vector>

namespace orken::desktop {

/// Work that waits for a window's frames. Whatever waits when this object goes is dropped. Main thread only.
class FrameCallbacks {
public:
    /// The window must outlive this object.
    explicit FrameCallbacks(GtkWindow* window) : window_(window) {}

    FrameCallbacks(const FrameCallbacks&) = delete;
    FrameCallbacks& operator=(const FrameCallbacks&) = delete;
    ~FrameCallbacks();

    /// On a later turn of the main loop, ahead of drawing.
    void beforeNext(std::function<void()> callback);

    /// Once a frame drawn after this call is on the screen, on a turn of the main loop of its own.
    void afterNext(std::function<void()> callback);

private:
    void framePainted();

    GtkWindow* window_;
    std::vector<guint> idles_;
    std::vector<std::function<void()>> waiting_;
    guint tick_ = 0;
    SignalConnection afterPaint_;
};

} // namespace orken::desktop
