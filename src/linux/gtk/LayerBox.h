#pragma once

#include "view/Geometry.h"

#include <gtk/gtk.h>

#include <functional>
#include <optional>

namespace orken::desktop {

/// A widget whose children lie on top of each other, each by its own alignment, on an optional background. Main thread
/// only.
[[nodiscard]] GtkWidget* layerBoxNew();

/// A box with a background takes clicks; without one they go through it to what lies below.
void layerBoxSetBackground(GtkWidget* box, const std::optional<GdkRGBA>& color, float cornerRadius);

/// Where the centre of a child stands in the box around it, in logical pixels; absent: laid out by its alignment.
void layerBoxSetPosition(GtkWidget* child, const std::optional<Point>& centre);

/// Called with the new size whenever the layout has changed it; from inside the layout, so it may only note it.
void layerBoxOnResize(GtkWidget* box, std::function<void(Size)> callback);

/// The least size of the box, in logical pixels; 0 for none. It never asks for more than the smallest screen has: a
/// window in full screen that is larger than its screen hides a part of itself, and on Wayland ends the program.
void layerBoxSetMinimum(GtkWidget* box, int width, int height);

} // namespace orken::desktop
