#include "linux/gtk/AnimationArea.h"

#include "linux/loop/GObjectPtr.h"

namespace {

using orken::desktop::GObjectPtr;

struct AreaState {
    GObjectPtr<GdkTexture> picture;
    orken::desktop::PicturePlace place;
    std::function<void()> onResize;
};

struct OrkenAnimationArea {
    GtkWidget parent;
    AreaState* state;
};

struct OrkenAnimationAreaClass {
    GtkWidgetClass parent;
};

G_DEFINE_TYPE(OrkenAnimationArea, orken_animation_area, GTK_TYPE_WIDGET)

AreaState& stateOf(gpointer instance)
{
    return *static_cast<OrkenAnimationArea*>(instance)->state;
}

void sizeAllocate(GtkWidget* widget, int, int, int)
{
    if (const auto onResize = stateOf(widget).onResize) {
        onResize();
    }
}

void snapshot(GtkWidget* widget, GtkSnapshot* snapshot)
{
    const AreaState& state = stateOf(widget);
    if (state.picture) {
        gtk_snapshot_push_clip(snapshot, &state.place.clip);
        gtk_snapshot_append_texture(snapshot, state.picture.get(), &state.place.picture);
        gtk_snapshot_pop(snapshot);
    }
}

void finalize(GObject* object)
{
    delete static_cast<AreaState*>(&stateOf(object));
    G_OBJECT_CLASS(orken_animation_area_parent_class)->finalize(object);
}

void orken_animation_area_class_init(OrkenAnimationAreaClass* areaClass)
{
    G_OBJECT_CLASS(areaClass)->finalize = finalize;
    GtkWidgetClass* widgetClass = GTK_WIDGET_CLASS(areaClass);
    widgetClass->size_allocate = sizeAllocate;
    widgetClass->snapshot = snapshot;
    gtk_widget_class_set_accessible_role(widgetClass, GTK_ACCESSIBLE_ROLE_PRESENTATION);
}

void orken_animation_area_init(OrkenAnimationArea* area)
{
    area->state = new AreaState;
}

} // namespace

namespace orken::desktop {

GtkWidget* animationAreaNew()
{
    return GTK_WIDGET(g_object_new(orken_animation_area_get_type(), "can-target", FALSE, nullptr));
}

void animationAreaOnResize(GtkWidget* area, std::function<void()> callback)
{
    stateOf(area).onResize = std::move(callback);
}

void animationAreaShow(GtkWidget* area, GdkTexture* picture, const PicturePlace& place)
{
    AreaState& state = stateOf(area);
    state.picture = GObjectPtr<GdkTexture>::share(picture);
    state.place = place;
    gtk_widget_queue_draw(area);
}

} // namespace orken::desktop
