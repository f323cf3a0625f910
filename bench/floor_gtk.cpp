// The least that a start window costs: the toolkit, two buttons, a line of text.

#include "Floor.h"

namespace {

constexpr auto kStyle = "button.wide { background: #8e8e93; border: none; border-radius: 0; }";

GtkWidget* wideButton(const char* label)
{
    GtkWidget* button = gtk_button_new_with_label(label);
    gtk_widget_add_css_class(button, "wide");
    gtk_widget_set_size_request(button, 300, 50);
    return button;
}

void activate(GtkApplication* application)
{
    GtkCssProvider* style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(style, kStyle, -1);
    gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(style),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(style);

    GtkWidget* stack = gtk_box_new(GTK_ORIENTATION_VERTICAL, 8);
    gtk_box_append(GTK_BOX(stack), wideButton("Uygulamayı Aç"));
    gtk_box_append(GTK_BOX(stack), wideButton("Uygulamadan Çık"));
    gtk_box_append(GTK_BOX(stack), gtk_label_new("Uygulama sürümü: 1.0"));

    GtkWidget* window = gtk_application_window_new(application);
    gtk_window_set_title(GTK_WINDOW(window), "floor");
    gtk_window_set_child(GTK_WINDOW(window), stack);
    gtk_window_present(GTK_WINDOW(window));
}

} // namespace

int main()
{
    return orken::bench::runFloor(G_CALLBACK(activate), nullptr);
}
