#pragma once

#include "view/Representable.h"

#include <gtk/gtk.h>

namespace orken::desktop {

/// What `PlatformView::native` points to on this desktop. Main thread only.
class WidgetView : public NativeHandle {
public:
    /// Owned by the view; a view is in one place of one window at most.
    [[nodiscard]] virtual GtkWidget* widget() const = 0;

    /// The view can be used again after it was disabled: it takes the keyboard focus.
    virtual void becameEnabled() = 0;

protected:
    ~WidgetView() = default;
};

} // namespace orken::desktop
