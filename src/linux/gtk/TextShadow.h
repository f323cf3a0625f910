#pragma once

#include "view/Style.h"

#include <gtk/gtk.h>

#include <optional>

namespace orken::desktop {

/// Gives a label's text this shadow, or takes it away. Main thread only.
void applyTextShadow(GtkWidget* label, const std::optional<Shadow>& shadow);

} // namespace orken::desktop
