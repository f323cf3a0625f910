#include "linux/gtk/LayerBox.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

struct LayerBoxState {
    std::optional<GdkRGBA> background;
    float cornerRadius = 0;
    std::function<void(orken::Size)> onResize;
    orken::Size size;
    int minimumWidth = 0;
    int minimumHeight = 0;
    gulong monitorsChanged = 0;
};

struct OrkenLayerBox {
    GtkWidget parent;
    LayerBoxState* state;
};

struct OrkenLayerBoxClass {
    GtkWidgetClass parent;
};

G_DEFINE_TYPE(OrkenLayerBox, orken_layer_box, GTK_TYPE_WIDGET)

constexpr const char* kPosition = "orken-position";

const orken::Point* positionOf(GtkWidget* child)
{
    return static_cast<const orken::Point*>(g_object_get_data(G_OBJECT(child), kPosition));
}

OrkenLayerBox* asLayerBox(gpointer instance)
{
    return static_cast<OrkenLayerBox*>(instance);
}

template <class Visit>
void forEachChild(GtkWidget* widget, Visit visit)
{
    for (GtkWidget* child = gtk_widget_get_first_child(widget); child; child = gtk_widget_get_next_sibling(child)) {
        visit(child);
    }
}

GListModel* monitorsOf(GtkWidget* widget)
{
    return gdk_display_get_monitors(gtk_widget_get_display(widget));
}

/// The extent of the smallest screen; absent while there is none.
std::optional<int> smallestScreen(GtkWidget* widget, GtkOrientation orientation)
{
    std::optional<int> smallest;
    GListModel* monitors = monitorsOf(widget);
    for (guint i = 0; i < g_list_model_get_n_items(monitors); ++i) {
        auto* monitor = static_cast<GdkMonitor*>(g_list_model_get_item(monitors, i));
        GdkRectangle geometry{};
        gdk_monitor_get_geometry(monitor, &geometry);
        g_object_unref(monitor);
        const int extent = orientation == GTK_ORIENTATION_HORIZONTAL ? geometry.width : geometry.height;
        // A monitor that has only just come may not have a size yet.
        if (extent > 0) {
            smallest = std::min(smallest.value_or(extent), extent);
        }
    }
    return smallest;
}

/// The smallest screen may be another one, or have another extent.
void followMonitors(GtkWidget* box)
{
    GListModel* monitors = monitorsOf(box);
    for (guint i = 0; i < g_list_model_get_n_items(monitors); ++i) {
        gpointer monitor = g_list_model_get_item(monitors, i);
        // One that was there before is followed already.
        g_signal_handlers_disconnect_by_func(monitor, reinterpret_cast<gpointer>(gtk_widget_queue_resize), box);
        g_signal_connect_object(monitor, "notify::geometry", G_CALLBACK(gtk_widget_queue_resize), box,
                                G_CONNECT_SWAPPED);
        g_object_unref(monitor);
    }
    gtk_widget_queue_resize(box);
}

int leastExtent(GtkWidget* widget, GtkOrientation orientation)
{
    const LayerBoxState& state = *asLayerBox(widget)->state;
    const int asked = orientation == GTK_ORIENTATION_HORIZONTAL ? state.minimumWidth : state.minimumHeight;
    return asked > 0 ? std::min(asked, smallestScreen(widget, orientation).value_or(asked)) : 0;
}

void measure(GtkWidget* widget, GtkOrientation orientation, int forSize, int* minimum, int* natural,
             int* minimumBaseline, int* naturalBaseline)
{
    *minimum = leastExtent(widget, orientation);
    *natural = *minimum;
    *minimumBaseline = -1;
    *naturalBaseline = -1;
    forEachChild(widget, [&](GtkWidget* child) {
        if (!gtk_widget_should_layout(child) || positionOf(child)) {
            return;
        }
        int childMinimum = 0;
        int childNatural = 0;
        gtk_widget_measure(child, orientation, forSize, &childMinimum, &childNatural, nullptr, nullptr);
        *minimum = std::max(*minimum, childMinimum);
        *natural = std::max(*natural, childNatural);
    });
}

void allocateAt(GtkWidget* child, const orken::Point& centre)
{
    GtkRequisition natural{};
    gtk_widget_get_preferred_size(child, nullptr, &natural);
    const graphene_point_t corner{static_cast<float>(std::round(centre.x - natural.width / 2.0)),
                                  static_cast<float>(std::round(centre.y - natural.height / 2.0))};
    gtk_widget_allocate(child, natural.width, natural.height, -1, gsk_transform_translate(nullptr, &corner));
}

void allocate(GtkWidget* widget, int width, int height, int baseline)
{
    forEachChild(widget, [&](GtkWidget* child) {
        if (!gtk_widget_should_layout(child)) {
            return;
        }
        if (const orken::Point* position = positionOf(child)) {
            allocateAt(child, *position);
        } else {
            gtk_widget_allocate(child, width, height, baseline, nullptr);
        }
    });
    LayerBoxState& state = *asLayerBox(widget)->state;
    const orken::Size size{.width = static_cast<double>(width), .height = static_cast<double>(height)};
    if (state.onResize && size != state.size) {
        state.size = size;
        state.onResize(size);
    }
}

void drawBackground(GtkWidget* widget, const LayerBoxState& state, GtkSnapshot* snapshot)
{
    const graphene_rect_t bounds{
        .origin = {0, 0},
        .size = {static_cast<float>(gtk_widget_get_width(widget)), static_cast<float>(gtk_widget_get_height(widget))}};
    GskRoundedRect rounded;
    gsk_rounded_rect_init_from_rect(&rounded, &bounds, state.cornerRadius);
    gtk_snapshot_push_rounded_clip(snapshot, &rounded);
    gtk_snapshot_append_color(snapshot, &*state.background, &bounds);
    gtk_snapshot_pop(snapshot);
}

void snapshot(GtkWidget* widget, GtkSnapshot* snapshot)
{
    const LayerBoxState& state = *asLayerBox(widget)->state;
    if (state.background) {
        drawBackground(widget, state, snapshot);
    }
    forEachChild(widget, [&](GtkWidget* child) { gtk_widget_snapshot_child(widget, child, snapshot); });
}

/// Only what is drawn can be hit.
gboolean contains(GtkWidget* widget, double x, double y)
{
    return asLayerBox(widget)->state->background &&
           GTK_WIDGET_CLASS(orken_layer_box_parent_class)->contains(widget, x, y);
}

GtkSizeRequestMode requestMode(GtkWidget* widget)
{
    GtkSizeRequestMode mode = GTK_SIZE_REQUEST_CONSTANT_SIZE;
    forEachChild(widget, [&](GtkWidget* child) {
        if (mode == GTK_SIZE_REQUEST_CONSTANT_SIZE) {
            mode = gtk_widget_get_request_mode(child);
        }
    });
    return mode;
}

void computeExpand(GtkWidget* widget, gboolean* horizontally, gboolean* vertically)
{
    *horizontally = FALSE;
    *vertically = FALSE;
    forEachChild(widget, [&](GtkWidget* child) {
        *horizontally = *horizontally || gtk_widget_compute_expand(child, GTK_ORIENTATION_HORIZONTAL);
        *vertically = *vertically || gtk_widget_compute_expand(child, GTK_ORIENTATION_VERTICAL);
    });
}

void dispose(GObject* object)
{
    if (gulong& handler = asLayerBox(object)->state->monitorsChanged; handler != 0) {
        g_signal_handler_disconnect(monitorsOf(GTK_WIDGET(object)), std::exchange(handler, 0));
    }
    while (GtkWidget* child = gtk_widget_get_first_child(GTK_WIDGET(object))) {
        gtk_widget_unparent(child);
    }
    G_OBJECT_CLASS(orken_layer_box_parent_class)->dispose(object);
}

void finalize(GObject* object)
{
    delete asLayerBox(object)->state;
    G_OBJECT_CLASS(orken_layer_box_parent_class)->finalize(object);
}

void orken_layer_box_class_init(OrkenLayerBoxClass* layerBoxClass)
{
    GObjectClass* objectClass = G_OBJECT_CLASS(layerBoxClass);
    objectClass->dispose = dispose;
    objectClass->finalize = finalize;
    GtkWidgetClass* widgetClass = GTK_WIDGET_CLASS(layerBoxClass);
    widgetClass->measure = measure;
    widgetClass->size_allocate = allocate;
    widgetClass->snapshot = snapshot;
    widgetClass->contains = contains;
    widgetClass->get_request_mode = requestMode;
    widgetClass->compute_expand = computeExpand;
}

void orken_layer_box_init(OrkenLayerBox* box)
{
    box->state = new LayerBoxState;
}

} // namespace

namespace orken::desktop {

GtkWidget* layerBoxNew()
{
    return GTK_WIDGET(g_object_new(orken_layer_box_get_type(), nullptr));
}

void layerBoxSetBackground(GtkWidget* box, const std::optional<GdkRGBA>& color, float cornerRadius)
{
    asLayerBox(box)->state->background = color;
    asLayerBox(box)->state->cornerRadius = cornerRadius;
    gtk_widget_queue_draw(box);
}

void layerBoxSetPosition(GtkWidget* child, const std::optional<Point>& centre)
{
    const Point* before = positionOf(child);
    if (before ? centre == *before : !centre) {
        return;
    }
    auto destroy = +[](gpointer point) { delete static_cast<Point*>(point); };
    g_object_set_data_full(G_OBJECT(child), kPosition, centre ? new Point(*centre) : nullptr, destroy);
    if (GtkWidget* parent = gtk_widget_get_parent(child)) {
        // Moving it changes nobody's size.
        before&& centre ? gtk_widget_queue_allocate(parent) : gtk_widget_queue_resize(parent);
    }
}

void layerBoxOnResize(GtkWidget* box, std::function<void(Size)> callback)
{
    asLayerBox(box)->state->onResize = std::move(callback);
}

void layerBoxSetMinimum(GtkWidget* box, int width, int height)
{
    LayerBoxState& state = *asLayerBox(box)->state;
    state.minimumWidth = width;
    state.minimumHeight = height;
    if ((width > 0 || height > 0) && state.monitorsChanged == 0) {
        state.monitorsChanged =
            g_signal_connect_swapped(monitorsOf(box), "items-changed", G_CALLBACK(followMonitors), box);
        followMonitors(box);
    }
    gtk_widget_queue_resize(box);
}

} // namespace orken::desktop
