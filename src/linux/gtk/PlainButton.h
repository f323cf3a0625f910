#pragma once

#include <gtk/gtk.h>

#include <string>

namespace orken::desktop {

/// A button without a bezel: only its child is seen, with the toolkit's focus ring and a hint of being pressed. A
/// screen reader says `label`. Main thread only.
[[nodiscard]] GtkWidget* plainButtonNew(const std::string& label);

/// The look of all plain buttons on the default display. Once, when the toolkit has started.
void installPlainButtonStyle();

} // namespace orken::desktop
