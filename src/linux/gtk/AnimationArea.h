#pragma once

#include "view/Geometry.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// Where a picture is drawn in its widget and which part of it is visible, in logical pixels.
struct PicturePlace {
    graphene_rect_t picture{};
    graphene_rect_t clip{};
};

/// A new widget that shows one picture, and nothing to a screen reader. It takes whatever room it is given. Main thread
/// only.
[[nodiscard]] GtkWidget* animationAreaNew();

/// Called after each change of the size.
void animationAreaOnResize(GtkWidget* area, std::function<void()> callback);

/// Null for no picture.
void animationAreaShow(GtkWidget* area, GdkTexture* picture, const PicturePlace& place);

} // namespace orken::desktop
