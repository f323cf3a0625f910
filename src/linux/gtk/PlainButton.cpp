#include "linux/gtk/PlainButton.h"

namespace orken::desktop {

namespace {

constexpr const char* kClass = "orken-plain";

// Black, since the theme's own colour has not enough contrast with the gray behind it (3.9 to 1 when light, 3.3 to 1
// when dark).
constexpr const char* kStyle =
    "button.orken-plain { color: black; background: none; border: none; box-shadow: none; padding: 0;"
    " margin: 0; min-width: 0; min-height: 0; border-radius: 0; font-weight: inherit; }"
    "button.orken-plain:active { opacity: 0.6; }";

} // namespace

GtkWidget* plainButtonNew(const std::string& label)
{
    GtkWidget* button = gtk_button_new();
    gtk_widget_add_css_class(button, kClass);
    // The keys stay where they were, with the page; Tab still leads here.
    gtk_widget_set_focus_on_click(button, FALSE);
    gtk_accessible_update_property(GTK_ACCESSIBLE(button), GTK_ACCESSIBLE_PROPERTY_LABEL, label.c_str(), -1);
    return button;
}

void installPlainButtonStyle()
{
    GtkCssProvider* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, kStyle, -1);
    gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(provider),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

} // namespace orken::desktop
