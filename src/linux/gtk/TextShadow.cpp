#include "linux/gtk/TextShadow.h"

#include <cmath>
#include <string>

namespace orken::desktop {

namespace {

constexpr const char* kProvider = "orken-shadow";

std::string styleOf(const Shadow& shadow)
{
    // Whole numbers, since the user's language may have a decimal mark that no style sheet knows.
    const auto pixels = [](double points) { return std::to_string(std::lround(points)) + "px "; };
    const auto channel = [](double value) { return std::to_string(std::lround(value * 255)); };
    const Color& color = shadow.color;
    const long percent = std::lround(color.alpha * 100);
    return "label { text-shadow: " + pixels(shadow.x) + pixels(shadow.y) + pixels(shadow.radius) + "alpha(rgb(" +
           channel(color.red) + "," + channel(color.green) + "," + channel(color.blue) + ")," +
           (percent >= 100 ? std::string("1") : "0." + std::to_string(100 + percent).substr(1)) + "); }";
}

} // namespace

void applyTextShadow(GtkWidget* label, const std::optional<Shadow>& shadow)
{
    auto* provider = static_cast<GtkCssProvider*>(g_object_get_data(G_OBJECT(label), kProvider));
    if (!provider && !shadow) {
        return;
    }
    if (!provider) {
        provider = gtk_css_provider_new();
        g_object_set_data_full(G_OBJECT(label), kProvider, provider, g_object_unref);
        gtk_style_context_add_provider(gtk_widget_get_style_context(label), GTK_STYLE_PROVIDER(provider),
                                       GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    }
    gtk_css_provider_load_from_data(provider, shadow ? styleOf(*shadow).c_str() : "", -1);
}

} // namespace orken::desktop
