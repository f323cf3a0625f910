#include "linux/gtk/AlertPanel.h"

#include "linux/gtk/AlertWidgets.h"
#include "linux/gtk/WindowEnd.h"

#include <utility>

namespace orken::desktop {

AlertPanel::~AlertPanel()
{
    if (window_) {
        destroyWindow(window_);
    }
}

void AlertPanel::show(const Alert& alert, GtkWindow* parent, const std::function<void(std::size_t)>& answer,
                      std::function<void()> closed)
{
    if (!window_) {
        window_ = makeAlertWindow();
    }
    closed_ = std::move(closed);
    gtk_window_set_transient_for(window_, parent);
    fillAlertWindow(window_, alert, answer);
    gtk_window_present(window_);
}

void AlertPanel::hide()
{
    closed_ = nullptr;
    if (window_) {
        gtk_widget_set_visible(GTK_WIDGET(window_), FALSE);
        gtk_window_set_transient_for(window_, nullptr);
    }
}

bool AlertPanel::isVisible() const
{
    return window_ && gtk_widget_get_visible(GTK_WIDGET(window_));
}

void AlertPanel::close()
{
    if (const auto closed = closed_) {
        closed();
    }
}

} // namespace orken::desktop
