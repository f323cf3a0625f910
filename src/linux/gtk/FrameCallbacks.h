#pragma once

#include "linux/loop/SignalConnection.h"
#include "linux/loop/Source.h"

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

    /// On a later turn of the main loop, and not before a first frame of the window is on the screen.
    void afterFirst(std::function<void()> callback);

private:
    void addIdle(int priority, std::function<void()> callback);
    void framePainted();

    GtkWindow* window_;
    std::vector<Source> idles_;
    std::vector<std::function<void()>> waiting_;
    guint tickCallback_ = 0;
    bool hasPainted_ = false;
    SignalConnection afterPaint_;
};

} // namespace orken::desktop
