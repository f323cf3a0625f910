#pragma once

#include <gtk/gtk.h>

namespace orken::desktop {

/// A GtkBox that takes no clicks of its own: they go between its children to what lies below. Main thread only.
[[nodiscard]] GtkWidget* stackBoxNew(GtkOrientation orientation);

} // namespace orken::desktop
