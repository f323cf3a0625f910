#include "linux/gtk/SymbolWidget.h"

#include <algorithm>
#include <numbers>

namespace orken::desktop {

namespace {

constexpr const char* kColor = "orken-color";

/// A filled circle with a cross cut out of it.
void drawCrossInCircle(GtkDrawingArea* area, cairo_t* cairo, int width, int height, gpointer)
{
    const auto* color = static_cast<const GdkRGBA*>(g_object_get_data(G_OBJECT(area), kColor));
    if (!color) {
        return;
    }
    const double radius = std::min(width, height) / 2.0;
    const double arm = radius * 0.36;
    cairo_translate(cairo, width / 2.0, height / 2.0);
    cairo_push_group(cairo);
    gdk_cairo_set_source_rgba(cairo, color);
    cairo_arc(cairo, 0, 0, radius, 0, 2 * std::numbers::pi);
    cairo_fill(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
    cairo_set_line_width(cairo, radius * 0.17);
    cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
    for (const double side : {1.0, -1.0}) {
        cairo_move_to(cairo, -arm, -arm * side);
        cairo_line_to(cairo, arm, arm * side);
    }
    cairo_stroke(cairo);
    cairo_pop_group_to_source(cairo);
    cairo_paint(cairo);
}

} // namespace

GtkWidget* symbolNew(const std::string& name)
{
    GtkWidget* area = gtk_drawing_area_new();
    gtk_widget_set_hexpand(area, TRUE);
    gtk_widget_set_vexpand(area, TRUE);
    if (name == "xmark.circle.fill") {
        gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area), drawCrossInCircle, nullptr, nullptr);
    }
    return area;
}

void symbolSetColor(GtkWidget* symbol, const GdkRGBA& color)
{
    g_object_set_data_full(G_OBJECT(symbol), kColor, gdk_rgba_copy(&color),
                           [](gpointer copy) { gdk_rgba_free(static_cast<GdkRGBA*>(copy)); });
    gtk_widget_queue_draw(symbol);
}

} // namespace orken::desktop
