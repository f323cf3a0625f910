#pragma once

#include "view/Alert.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// A window for alerts: modal, without a close control, and no close request of the window manager ends it. Owned by
/// the toolkit until `gtk_window_destroy`. Main thread only.
[[nodiscard]] GtkWindow* makeAlertWindow();

/// Fills the window; `answer` gets the button's place in the list. The default button stands at the trailing edge and
/// has the first focus, and Return presses it.
void fillAlertWindow(GtkWindow* window, const Alert& alert, const std::function<void(std::size_t)>& answer);

} // namespace orken::desktop
