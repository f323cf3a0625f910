#pragma once

#include "view/Style.h"

#include <gtk/gtk.h>

#include <optional>

namespace orken::desktop {

/// The shadow of a label's text; absent for none. Main thread only.
void applyTextShadow(GtkWidget* label, const std::optional<Shadow>& shadow);

} // namespace orken::desktop
