#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>
#include <vector>

namespace orken::desktop {

/// What an alert window shows. Texts are plain, never markup.
struct AlertWidgetsContent {
    std::string title;
    std::string message;
    /// The first is the default button, at the trailing edge.
    std::vector<std::string> buttons;
    const char* iconName = "dialog-warning";
};

/// A window for alerts: modal, without a close control, and no close request of the window manager ends it. Owned by
/// the toolkit until `gtk_window_destroy`. Main thread only.
[[nodiscard]] GtkWindow* makeAlertWindow();

/// Fills the window; `answer` gets the button's place in the list. The default button has the first focus, and Return
/// presses it.
void fillAlertWindow(GtkWindow* window, const AlertWidgetsContent& content,
                     const std::function<void(std::size_t)>& answer);

} // namespace orken::desktop
