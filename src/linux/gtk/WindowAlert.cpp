#include "linux/gtk/WindowAlert.h"

#include "linux/gtk/AlertWidgets.h"
#include "linux/gtk/WindowEnd.h"

#include <algorithm>
#include <memory>

namespace orken::desktop {

namespace {

using Answer = std::function<void(std::size_t)>;

/// Escape presses one button; the controller owns what it needs for that.
void pressOnEscape(GtkWindow* window, std::size_t button, const Answer& answer)
{
    auto* shortcut = gtk_shortcut_new(gtk_keyval_trigger_new(GDK_KEY_Escape, GdkModifierType(0)),
                                      gtk_callback_action_new(
                                          [](GtkWidget*, GVariant*, gpointer data) -> gboolean {
                                              const auto press = *static_cast<std::function<void()>*>(data);
                                              press();
                                              return TRUE;
                                          },
                                          new std::function<void()>([button, answer] { answer(button); }),
                                          [](gpointer data) { delete static_cast<std::function<void()>*>(data); }));
    GtkEventController* controller = gtk_shortcut_controller_new();
    gtk_shortcut_controller_add_shortcut(GTK_SHORTCUT_CONTROLLER(controller), shortcut);
    gtk_widget_add_controller(GTK_WIDGET(window), controller);
}

} // namespace

WindowAlert::WindowAlert(GtkWindow* parent, const Alert& alert, WindowAlertGate& gate, const Answer& answer)
    : window_(makeAlertWindow())
{
    gtk_window_set_transient_for(window_, parent);
    fillAlertWindow(window_, alert, answer);
    const auto cancel = std::find_if(alert.buttons.begin(), alert.buttons.end(),
                                     [](const auto& button) { return button.role == ButtonRole::cancel; });
    if (cancel != alert.buttons.end()) {
        pressOnEscape(window_, static_cast<std::size_t>(cancel - alert.buttons.begin()), answer);
    }
    if (gate.isOpen()) {
        gtk_window_present(window_);
    } else {
        opened_ = gate.opened().subscribe([this] { gtk_window_present(window_); });
    }
}

WindowAlert::~WindowAlert()
{
    destroyWindow(window_);
}

} // namespace orken::desktop
