#pragma once

#include "view/Geometry.h"

#include <gtk/gtk.h>

#include <functional>
#include <optional>

namespace orken::desktop {

/// A widget whose children lie on top of each other, each by its own alignment, on an optional background. Main thread
/// only.
[[nodiscard]] GtkWidget* layerBoxNew();

void layerBoxSetBackground(GtkWidget* box, const std::optional<GdkRGBA>& color);

/// Called with the new size whenever the layout has changed it; from inside the layout, so it may only note it.
void layerBoxOnResize(GtkWidget* box, std::function<void(Size)> callback);

} // namespace orken::desktop
